#include "mainwindow/CVCardTableCellView.h"

#include "foundation/Log.h"
#include "widgets/AddButton.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <exception>

namespace {

// Distances in points.
constexpr int buttonSize = 24;
constexpr int buttonInset = 7;

} // namespace

CVCardTableCellView::CVCardTableCellView(QWidget* parent)
    : QWidget(parent)
    , m_cardInfoAnchor(new QWidget(this))
    , m_addStatementButton(new AddButton(this))
{
    m_cell.setTrailingSpace(buttonSize + 2 * buttonInset);
    m_cardInfoAnchor->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_addStatementButton->setAccessibleName(tr("Add Statement"));
    m_addStatementButton->setToolTip(tr("Add a statement of this card"));
    // The keyboard has a command for it; a stop at each row would be in the way.
    m_addStatementButton->setFocusPolicy(Qt::NoFocus);
}

void CVCardTableCellView::setObjectValue(CVCard* card)
{
    m_cell.setObjectValue(card);
    update();
}

void CVCardTableCellView::setHighlighted(bool isHighlighted)
{
    m_cell.setHighlighted(isHighlighted);
    update();
}

QWidget* CVCardTableCellView::viewWithTag(int tag) const
{
    switch (tag) {
    case cardInfoTag:
        return m_cardInfoAnchor;
    case newStatementTag:
        return m_addStatementButton;
    default:
        return nullptr;
    }
}

bool CVCardTableCellView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        QToolTip::showText(help.globalPos(), m_cell.expansionToolTip(rect()), this);
        return true;
    }
    return QWidget::event(event);
}

void CVCardTableCellView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setLayoutDirection(layoutDirection());
    try {
        m_cell.drawWithFrame(painter, rect());
    } catch (const std::exception& exception) {
        Log::line(QString(u"Unable to draw a card: " + QString::fromUtf8(exception.what())));
    }
}

void CVCardTableCellView::resizeEvent(QResizeEvent* /*event*/)
{
    const int buttonX = width() - buttonInset - buttonSize;
    const auto place = [this](QWidget& child, const QRect& leftToRight) {
        child.setGeometry(QStyle::visualRect(layoutDirection(), rect(), leftToRight));
    };
    place(*m_cardInfoAnchor, {0, 0, buttonX - buttonInset, height()});
    place(*m_addStatementButton, {buttonX, (height() - buttonSize) / 2, buttonSize, buttonSize});
}
