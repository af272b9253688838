#include "timeline/GaussianBlur.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

/// The weights of a pixel's neighbours to one side, its own first. All together are 1.
std::vector<double> weights(double sigma)
{
    std::vector<double> result(1, 1.0);
    double sum = 1.0;
    const int reach = static_cast<int>(std::ceil(4.0 * sigma));
    for (int distance = 1; distance <= reach; ++distance) {
        result.push_back(std::exp(-distance * distance / (2.0 * sigma * sigma)));
        sum += 2.0 * result.back();
    }
    std::ranges::transform(result, result.begin(), [sum](double weight) { return weight / sum; });
    return result;
}

/// Blurred along its rows, and with rows and columns exchanged.
QImage blurredRows(const QImage& image, const std::vector<double>& weights)
{
    const int reach = static_cast<int>(weights.size()) - 1;
    QImage result(image.height(), image.width(), QImage::Format_Alpha8);
    for (int y = 0; y < image.height(); ++y) {
        const uchar* const row = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            double sum = 0.0;
            const int end = std::min(x + reach, image.width() - 1);
            for (int other = std::max(x - reach, 0); other <= end; ++other) {
                sum += weights[static_cast<std::size_t>(std::abs(other - x))] * row[other];
            }
            result.scanLine(x)[y] = static_cast<uchar>(std::lround(sum));
        }
    }
    return result;
}

} // namespace

QImage GaussianBlur::blurred(const QImage& image, double sigma)
{
    const auto weightsOfNeighbours = weights(sigma);
    return blurredRows(blurredRows(image, weightsOfNeighbours), weightsOfNeighbours);
}
