#pragma once

class NSPopover;

/// Learns when a popover opens and closes, and decides whether it may close by itself.
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
};
