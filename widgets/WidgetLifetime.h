#pragma once

class QWidget;

/// Questions about when a widget comes and goes.
namespace WidgetLifetime {

/// Whether the widget's destruction has begun. Guarded pointers still point at it then, and it
/// still calls itself visible, but it can neither be moved to another parent nor take the focus.
bool isEnding(const QWidget& widget);

} // namespace WidgetLifetime
