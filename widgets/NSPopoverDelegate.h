#pragma once

#include "widgets/PopoverAnchor.h"

#include <optional>

class NSPopover;

/// Learns when a popover opens and closes, decides whether it may close by itself, and says where
/// what it is about has gone.
class NSPopoverDelegate
{
public:
    virtual ~NSPopoverDelegate() = default;

    /// It is about to show: the last moment to prepare its content. Each such call is followed by
    /// one of popoverDidClose(), unless the popover is destroyed before.
    virtual void popoverWillShow(NSPopover& popover) = 0;
    /// It is there, its animation is over, and its content's first field has the focus. Not called
    /// when it closed before that.
    virtual void popoverDidShow(NSPopover& popover) = 0;
    /// Whether it may close as the person seems to want. Not asked when the program closes it.
    virtual bool popoverShouldClose(NSPopover& popover) = 0;
    /// It is gone, and its content is free again. The popover may be destroyed now, but shows
    /// nothing until this returns.
    virtual void popoverDidClose(NSPopover& popover) = 0;

    /// Where it points from now on. Asked whenever it is placed anew: after its view has moved or
    /// was resized, after the window or the content has changed, and by reposition(). Absent, or a
    /// null view or rectangle: it stays at what it points to.
    virtual std::optional<PopoverAnchor> popoverWillReposition(NSPopover& /*popover*/)
    {
        return std::nullopt;
    }
};
