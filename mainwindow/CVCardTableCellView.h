#pragma once

#include "mainwindow/CVCardInfoCell.h"

#include <QWidget>

class QAbstractButton;

/// What a row of the list of cards shows of its card: the texts, and a quiet "+" that adds a
/// statement.
///
/// Two of its subviews are where popovers point to: the texts' area has tag 1, the "+" tag 2.
class CVCardTableCellView : public QWidget
{
    Q_OBJECT

public:
    static constexpr int cardInfoTag = 1;
    static constexpr int newStatementTag = 2;

    explicit CVCardTableCellView(QWidget* parent = nullptr);

    CVCard* objectValue() const { return m_cell.objectValue(); }
    /// The card is borrowed; null for none.
    void setObjectValue(CVCard* card);
    void setHighlighted(bool isHighlighted);

    /// The subview with a tag; null when no subview has it.
    QWidget* viewWithTag(int tag) const;
    QAbstractButton& addStatementButton() { return *m_addStatementButton; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    CVCardInfoCell m_cell;
    QWidget* m_cardInfoAnchor;
    QAbstractButton* m_addStatementButton;
};
