#include "editors/FormLine.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace {

/// In points.
constexpr int leastHeight = 18;

} // namespace

FormLine::FormLine(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    // The form has its width from its fields.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void FormLine::setLineCount(int count)
{
    m_lineCount = count;
    updateGeometry();
    update();
}

QString FormLine::shownText() const
{
    const auto whole = text();
    QTextLayout layout(whole, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        if (lines.size() + 1 == m_lineCount) {
            const auto rest = whole.mid(line.textStart());
            lines.append(fontMetrics().elidedText(rest, Qt::ElideRight, width()));
            break;
        }
        line.setLineWidth(width());
        lines.append(whole.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines.join(u'\n');
}

QSize FormLine::sizeHint() const
{
    const int textHeight = fontMetrics().height() + (m_lineCount - 1) * fontMetrics().lineSpacing();
    return {QLabel::sizeHint().width(), std::max(leastHeight, textHeight)};
}

bool FormLine::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool isCutOff = shownText().replace(u'\n', u' ') != text();
        const auto position = static_cast<const QHelpEvent&>(*event).globalPos();
        QToolTip::showText(position, isCutOff ? text() : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

void FormLine::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Qt::AlignCenter, palette(), isEnabled(), shownText(),
                          foregroundRole());
}
