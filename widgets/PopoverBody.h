#pragma once

#include <QPointer>
#include <QWidget>

/// The opaque middle of a popover, which its content fills.
///
/// Being opaque it spares the window behind from painting when the content changes. Tab goes round
/// inside it, and no key or mouse event that the content ignores gets out of it. For assistive
/// programs it is a dialog.
class PopoverBody : public QWidget
{
    Q_OBJECT

public:
    /// Lends the content, which has no parent, to the body and shows it in there.
    PopoverBody(QWidget& window, QWidget& content);
    /// Gives the content back.
    ~PopoverBody() override;

    /// Gives the content back, hidden and without a parent, if that has not been done yet.
    void giveContentBack();

    /// What the content needs. Not wider or higher than it may be.
    QSize sizeHint() const override;

    /// Gives the focus to the content's first field, or to the content if it has none.
    void focusFirstField();

Q_SIGNALS:
    /// The content may need another size now.
    void sizeHintDidChange();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPointer<QWidget> m_content;
};
