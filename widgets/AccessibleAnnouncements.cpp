#include "widgets/AccessibleAnnouncements.h"

#include <QAccessible>

namespace {

AccessibleAnnouncements::Listener currentListener = nullptr;

} // namespace

bool AccessibleAnnouncements::areHeard()
{
    return currentListener || QAccessible::isActive();
}

void AccessibleAnnouncements::make(QAccessibleEvent& event)
{
    if (currentListener) {
        currentListener(event);
    } else {
        QAccessible::updateAccessibility(&event);
    }
}

void AccessibleAnnouncements::setListener(Listener listener)
{
    currentListener = listener;
}
