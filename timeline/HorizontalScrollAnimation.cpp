#include "timeline/HorizontalScrollAnimation.h"

#include <QScrollBar>
#include <QStyle>

#include <cmath>

namespace {

constexpr int durationInMilliseconds = 1000;

} // namespace

HorizontalScrollAnimation::HorizontalScrollAnimation(CVSyncScrollView& leader,
                                                     CVSyncScrollView& follower, QObject* parent)
    : QVariantAnimation(parent)
    , m_leader(leader)
    , m_follower(follower)
{
    setEasingCurve(QEasingCurve::InOutSine);
    for (const auto* const view : {&leader, &follower}) {
        connect(view, &CVSyncScrollView::willStartLiveScroll, this,
                &HorizontalScrollAnimation::stop);
    }
}

void HorizontalScrollAnimation::scrollTo(double x)
{
    stop();
    const auto* const bar = m_leader.horizontalScrollBar();
    if (!std::isfinite(x)) {
        return;
    }
    const bool isAnimated =
        m_leader.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &m_leader) > 0;
    setDuration(isAnimated ? durationInMilliseconds : 0);
    setStartValue(static_cast<double>(bar->value()));
    setEndValue(qBound<double>(bar->minimum(), x, bar->maximum()));
    start();
}

void HorizontalScrollAnimation::updateState(State newState, State oldState)
{
    QVariantAnimation::updateState(newState, oldState);
    if (newState == Running) {
        m_pause.emplace(m_follower);
    } else if (newState == Stopped && m_pause) {
        m_pause.reset();
        m_follower.horizontalScrollBar()->setValue(m_leader.horizontalScrollBar()->value());
    }
}

void HorizontalScrollAnimation::updateCurrentValue(const QVariant& value)
{
    // Setting a key value asks for the current one, long before anything moves.
    if (state() == Running) {
        const int x = qRound(value.toDouble());
        m_leader.horizontalScrollBar()->setValue(x);
        m_follower.horizontalScrollBar()->setValue(x);
    }
}
