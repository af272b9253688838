#pragma once

#include "timeline/CVSyncScrollView.h"

#include <QVariantAnimation>

#include <optional>

/// Moves two scroll views that keep in step sideways, both at once, in a second; in no time where
/// the style has no animations.
///
/// The follower's sync is paused meanwhile. However the animation ends, at its goal, because the
/// person scrolls, or because another one begins, the views are in step again afterwards.
class HorizontalScrollAnimation : public QVariantAnimation
{
    Q_OBJECT

public:
    /// Both views must be there as long as the animation runs.
    HorizontalScrollAnimation(CVSyncScrollView& leader, CVSyncScrollView& follower,
                              QObject* parent = nullptr);

    /// Begins to move the views until `x`, in points, is at their left edge, as far as their
    /// content reaches.
    void scrollTo(double x);

private:
    void updateState(State newState, State oldState) override;
    void updateCurrentValue(const QVariant& value) override;

    CVSyncScrollView& m_leader;
    CVSyncScrollView& m_follower;
    std::optional<SyncPause> m_pause;
};
