#pragma once

#include <QPointer>
#include <QScrollArea>

/// A scroll area that keeps in step with others, on one axis each.
///
/// It follows a partner; for two to follow each other, each is told of the other. A view that
/// follows announces nothing, so there is no echo. To reach as far as its partner does, it shows no
/// more than that: it leaves room beside its content for what the partner's scroll bars take, or
/// what stands beside the partner.
///
/// Ctrl and the wheel are left to the window, and so are the keys. Shift and the wheel scroll
/// sideways.
class CVSyncScrollView : public QScrollArea
{
    Q_OBJECT

public:
    explicit CVSyncScrollView(QWidget* parent = nullptr);

    /// The view followed on that axis; null, as at first, for none. It may go at any time.
    CVSyncScrollView* verticalSyncScrollView() const { return m_verticalSyncScrollView; }
    void setVerticalSyncScrollView(CVSyncScrollView* other);
    CVSyncScrollView* horizontalSyncScrollView() const { return m_horizontalSyncScrollView; }
    void setHorizontalSyncScrollView(CVSyncScrollView* other);
    void stopVerticalSync();
    void stopHorizontalSync();
    /// Stops both.
    void stopSync();

    /// While it is paused, the view stays where it is.
    bool isSyncPaused() const { return m_isSyncPaused; }
    void pauseSync() { m_isSyncPaused = true; }
    void resumeSync() { m_isSyncPaused = false; }

    /// The point of the content in the upper left corner of the view.
    QPoint contentOrigin() const;
    /// The view goes there as far as its content reaches.
    void setContentOrigin(const QPoint& origin);

Q_SIGNALS:
    /// The view shows another part of its content, and did not just follow a partner there.
    void contentBoundsDidChange();
    /// The room that the view has for its content is of another size.
    void viewportDidResize();
    /// The person begins to scroll the view: by wheel, by key or by scroll bar.
    void willStartLiveScroll();

protected:
    void scrollContentsBy(int dx, int dy) override;
    /// The view stays where it is when its content gets the focus.
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void verticalSyncViewContentBoundsDidChange();
    void horizontalSyncViewContentBoundsDidChange();
    void follow(const QPoint& origin);
    /// For the content, beside the scroll bars, if there were no margins.
    QSize room() const;
    /// Takes from this view what its partners do not have.
    void keepAsSmall();

    QPointer<CVSyncScrollView> m_verticalSyncScrollView;
    QPointer<CVSyncScrollView> m_horizontalSyncScrollView;
    bool m_isSyncPaused = false;
    bool m_isFollowing = false;
};

/// Pauses a view's sync while it lives.
class [[nodiscard]] SyncPause
{
public:
    explicit SyncPause(CVSyncScrollView& view)
        : m_view(&view)
    {
        m_view->pauseSync();
    }
    SyncPause(const SyncPause&) = delete;
    SyncPause& operator=(const SyncPause&) = delete;
    ~SyncPause()
    {
        if (m_view) {
            m_view->resumeSync();
        }
    }

private:
    QPointer<CVSyncScrollView> m_view;
};
