// How the main window's controller zooms the timeline, and remembers how the person left the view.

#include "foundation/UserDefaults.h"
#include "mainwindow/MainWindowController.h"
#include "mainwindow/MainWindowHost.h"
#include "model/CVManagedObjectContext.h"
#include "store/NSArrayController.h"
#include "timeline/HorizontalScrollAnimation.h"
#include "timeline/TimelineZoom.h"

#include "ui_MainWindow.h"

#include <QSignalBlocker>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <utility>

namespace {

/// Steps of the zoom control in a scale of 1.
constexpr double stepsPerScale = 10.0;

/// What stands in the settings for a selection of nothing.
constexpr auto notFound = std::numeric_limits<std::int64_t>::max();

/// Tells, once, that a window came onto the screen.
class FirstExposure : public QObject
{
public:
    FirstExposure(QWindow& window, std::function<void()> handler)
        : QObject(&window)
        , m_handler(std::move(handler))
    {
        window.installEventFilter(this);
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Expose && static_cast<QWindow*>(watched)->isExposed()) {
            watched->removeEventFilter(this);
            deleteLater();
            m_handler();
        }
        return false;
    }

    std::function<void()> m_handler;
};

/// The zoom that a menu item stands for; absent when it stands for none.
std::optional<double> scaleOfItem(const QAction& item)
{
    bool isNumber = false;
    const double tag = item.property("tag").toDouble(&isNumber);
    return isNumber ? std::optional(tag) : std::nullopt;
}

} // namespace

void MainWindowController::setScale(double scale)
{
    if (!std::isfinite(scale) || scale == m_scale) {
        return;
    }
    const KeyValueChange change(*this, "scale");
    m_scrollAnimation->stop();
    auto& scrollView = *m_ui->timelineScrollView;
    const QPointF origin = scrollView.contentOrigin();
    const double x =
        TimelineZoom::xKeepingMiddle(origin.x(), scrollView.viewport()->width(), m_scale, scale);
    m_scale = scale;
    scrollView.setScale(scale);
    scrollView.adjustTimelineWidth();
    m_ui->timelineTableView->scrollPoint({x, origin.y()});
}

bool MainWindowController::canScale() const
{
    return m_cardsController->rowCount() > 0 && !timelineIsEmpty();
}

void MainWindowController::tickleCanScale()
{
    const KeyValueChange change(*this, "canScale");
}

bool MainWindowController::timelineIsEmpty() const
{
    return !m_context || !CVManagedObjectContext::hasStatements(*m_context);
}

void MainWindowController::magnifyWithEvent(double magnification)
{
    setScale(TimelineZoom::scaleAfterMagnification(m_scale, magnification));
}

void MainWindowController::applyScaleMultiplier(QObject* sender)
{
    const auto* const item = qobject_cast<QAction*>(sender);
    if (const auto scale = item ? scaleOfItem(*item) : std::nullopt) {
        setScale(*scale);
    }
}

void MainWindowController::zoomIn()
{
    for (const auto* const item : m_ui->viewMenu->actions()) {
        const auto scale = scaleOfItem(*item);
        if (scale && *scale > std::max(m_scale, 1.0)) {
            setScale(*scale);
            return;
        }
    }
}

void MainWindowController::zoomOut()
{
    std::optional<double> next;
    for (const auto* const item : m_ui->viewMenu->actions()) {
        const auto scale = scaleOfItem(*item);
        if (scale && *scale < m_scale) {
            next = scale;
        }
    }
    if (next) {
        setScale(*next);
    }
}

void MainWindowController::setUpZoom()
{
    auto& slider = *m_ui->zoomSlider;
    connect(&slider, &QSlider::valueChanged, this,
            [this](int value) { setScale(value / stepsPerScale); });
    m_observations.push_back(observe("scale", [this, &slider](const ObservedChange&) {
        const QSignalBlocker blocker(slider);
        slider.setValue(static_cast<int>(std::clamp<double>(std::round(m_scale * stepsPerScale),
                                                            slider.minimum(), slider.maximum())));
        Q_EMIT m_window->userInterfaceItemsDidChange();
    }));
    m_observations.push_back(observe("canScale", [this](const ObservedChange&) {
        const bool can = canScale();
        for (auto* const widget : std::initializer_list<QWidget*>{
                 m_ui->minimumZoomLabel, m_ui->zoomSlider, m_ui->maximumZoomLabel}) {
            widget->setEnabled(can);
        }
    }));
}

void MainWindowController::restoreTimelineGeometry()
{
    auto* const handle = m_window->windowHandle();
    if (handle && !handle->isExposed() && m_window->isVisible()) {
        // The window may be given another size before it is seen, and the timeline with it.
        new FirstExposure(*handle, [this] { restoreTimelineGeometry(); });
        return;
    }
    if (timelineIsEmpty()) {
        return;
    }
    const auto& defaults = m_host.userDefaults();
    setScale(std::max(defaults.doubleForKey(u"scale"), 1.0));
    m_ui->timelineTableView->scrollPoint(
        {defaults.doubleForKey(u"offset.x"), defaults.doubleForKey(u"offset.y")});
}

void MainWindowController::restoreWindowFrame()
{
    const auto& defaults = m_host.userDefaults();
    m_window->restoreGeometry(defaults.byteArrayForKey(u"windowFrame"));
    m_ui->splitView->restoreArrangement(defaults.byteArrayForKey(u"splitView"));
}

void MainWindowController::windowWillClose()
{
    const QPointF origin = m_ui->timelineScrollView->contentOrigin();
    auto& defaults = m_host.userDefaults();
    defaults.setDouble(origin.x(), u"offset.x");
    defaults.setDouble(origin.y(), u"offset.y");
    defaults.setDouble(m_scale, u"scale");
    const auto selected = m_cardsController->selectionIndex();
    defaults.setInteger(selected ? static_cast<std::int64_t>(*selected) : notFound,
                        u"selectedCardIndex");
    defaults.setByteArray(m_window->saveGeometry(), u"windowFrame");
    defaults.setByteArray(m_ui->splitView->saveArrangement(), u"splitView");
    defaults.synchronize();
}
