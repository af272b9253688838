#pragma once

class QImage;

/// Blurring as light does it.
namespace GaussianBlur {

/// The image, of Format_Alpha8, as if nothing but transparency were around it. `sigma` is the
/// standard deviation of the gaussian in pixels, greater than 0.
QImage blurred(const QImage& image, double sigma);

} // namespace GaussianBlur
