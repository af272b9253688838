#pragma once

class QAccessibleEvent;

/// What the program tells assistive technology without being asked.
namespace AccessibleAnnouncements {

using Listener = void (*)(QAccessibleEvent&);

/// Whether anybody listens. While nobody does, nothing need be prepared to be told.
bool areHeard();
void make(QAccessibleEvent& event);

/// Hears every announcement instead of the platform, until null is set: not every platform has
/// assistive technology.
void setListener(Listener listener);

} // namespace AccessibleAnnouncements
