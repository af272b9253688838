#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class NoticeBar;

/// What the line at the foot of the window says: one thing at a time, and the way back from it.
///
/// A notice stays until its button or its × is pressed, until a later one takes its place, or until
/// the next command. That something could not be saved goes before all else, and stays until it is.
class WindowNotice : public QObject
{
    Q_OBJECT

public:
    /// The bar must outlive the notice.
    explicit WindowNotice(NoticeBar& bar, QObject* parent = nullptr);

    /// Says that something happened. `action` is what the button does that has this title; without
    /// a title there is no button.
    void tell(const QString& text, const QString& actionTitle = {},
              std::function<void()> action = {});
    /// The person goes on to something else: what was told is told no more.
    void withdraw();

    /// Says that something is not in the file, until what was not saved is.
    void tellUnsaved(const QString& text, const QString& actionTitle, std::function<void()> action);
    /// Everything is in the file. Whether it was told that something is not.
    bool withdrawUnsaved();

private:
    struct Content
    {
        QString text;
        QString actionTitle;
        std::function<void()> action;
    };

    void show();
    void showUnlessUnsaved();
    void perform();
    void dismiss();

    NoticeBar& m_bar;
    std::optional<Content> m_told;
    std::optional<Content> m_unsaved;
};
