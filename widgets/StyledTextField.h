#pragma once

#include <QLineEdit>
#include <QPointer>

/// A one-line text field with a thin rounded border, which glows while the field has the focus.
///
/// What is typed can be marked as invalid, with the reason. Undo in menus is the window's affair,
/// so the context menu does not offer it.
class StyledTextField : public QLineEdit
{
    Q_OBJECT

public:
    explicit StyledTextField(QWidget* parent = nullptr);
    ~StyledTextField() override;

    /// Why what is typed cannot be used, in one line; empty while it can be. The reason turns the
    /// border red and is the field's tooltip and accessible description, so give it neither of its
    /// own.
    QString invalidReason() const { return m_invalidReason; }
    void setInvalidReason(const QString& reason);

    /// The text as it stands there when the person has left the field: a field that has a way of
    /// its own to write its value answers that.
    virtual QString settledText() const { return text(); }

    /// 26 points high, or higher where the font needs it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QColor accentColor() const;
    void updateGlow();

    QString m_invalidReason;
    QPointer<QWidget> m_glow;
};
