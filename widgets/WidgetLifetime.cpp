#include "widgets/WidgetLifetime.h"

#include <QWidget>

bool WidgetLifetime::isEnding(const QWidget& widget)
{
    // The first thing that a widget leaves is the focus chain, which for one alone is itself.
    return !widget.nextInFocusChain();
}
