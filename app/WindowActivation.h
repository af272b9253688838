#pragma once

class QWidget;
struct ActivationToken;

namespace WindowActivation {

/// Brings a window of the program forward from wherever it is: hidden, minimized or covered.
/// The token is handed to the desktop, which decides.
void bringForward(QWidget& window, const ActivationToken& token);

} // namespace WindowActivation
