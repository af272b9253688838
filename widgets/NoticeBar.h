#pragma once

#include "widgets/GradientBox.h"

#include <QPointer>
#include <QString>

class DismissButton;
class FormButton;

/// A quiet line that says what has just happened, with at most one button to act on it and a × to
/// send it away. It is hidden while there is nothing to say.
///
/// The text is wrapped to two lines, and shortened where it needs more; the tool tip has all of it
/// then. It is in the bar's font and foreground colour. Assistive technology is told of each notice
/// when it appears. The bar takes the focus only from those who walk there with the keyboard, and
/// gives it back when it goes.
class NoticeBar : public GradientBox
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);
    ~NoticeBar() override;

    /// Shows a notice in place of the one that is there; an empty title stands for no button.
    void showNotice(const QString& text, const QString& actionTitle);
    void clearNotice();
    /// Whether there is a ×; at first there is. Without one, a notice goes with its cause.
    void setDismissible(bool isDismissible);
    bool isShowingNotice() const { return !m_text.isEmpty(); }

    /// The notice, in full; empty while there is none.
    QString text() const { return m_text; }

Q_SIGNALS:
    /// The button was pressed. The notice is still there.
    void actionTriggered();
    /// The × was pressed; the notice is gone.
    void dismissed();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void rememberFocus(QWidget* before, QWidget* now);
    void giveFocusBack();
    /// Where the text stands: from the leading edge to the buttons.
    QRect textRect() const;
    void layoutText();

    QString m_text;
    /// What is seen of it, one or two lines.
    QString m_shownText;
    FormButton* m_actionButton;
    DismissButton* m_dismissButton;
    /// What had the focus before it came into the bar.
    QPointer<QWidget> m_focusBefore;
};
