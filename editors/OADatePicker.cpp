#include "editors/OADatePicker.h"

#include "editors/OADateGrid.h"
#include "editors/OADateInk.h"
#include "editors/OADateNavigationButton.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateFormatter.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

// In points.
constexpr int margin = 8;
constexpr int titleInset = 8;
constexpr int spacing = 4;

/// Some instant of the month before (`step` -1) or after (1) that of `date`; absent when it has no
/// day in the years 1 to 9999.
std::optional<Instant> inMonthBeside(Instant date, int step)
{
    const auto& calendar = Calendar::current();
    const auto edge = step < 0 ? calendar.monthStart(date) : calendar.monthEnd(date);
    const auto beyond = edge ? std::optional(*edge + step) : std::nullopt;
    return beyond && OADateMonth::isShowable(*beyond) ? beyond : std::nullopt;
}

} // namespace

OADatePicker::OADatePicker(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_previousMonth(new OADateNavigationButton(OADateNavigationButton::Sign::Back,
                                                 tr("Previous Month"), this))
    , m_currentMonth(
          new OADateNavigationButton(OADateNavigationButton::Sign::Dot, tr("Back to Today"), this))
    , m_nextMonth(
          new OADateNavigationButton(OADateNavigationButton::Sign::Forward, tr("Next Month"), this))
    , m_grid(new OADateGrid(this))
{
    auto font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    QPalette ink = m_title->palette();
    ink.setColor(QPalette::WindowText, OADateInk::blue);
    m_title->setPalette(ink);
    m_title->setContentsMargins(titleInset, 0, titleInset, 0);
    m_title->setTextFormat(Qt::PlainText);

    auto* const header = new QHBoxLayout;
    header->setSpacing(0);
    header->addWidget(m_title, 1);
    header->addWidget(m_previousMonth);
    header->addWidget(m_currentMonth);
    header->addWidget(m_nextMonth);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    layout->addLayout(header);
    layout->addWidget(m_grid);
    setFocusProxy(m_grid);

    connect(m_previousMonth, &QAbstractButton::clicked, this, &OADatePicker::showPreviousMonth);
    connect(m_currentMonth, &QAbstractButton::clicked, this, &OADatePicker::showCurrentMonth);
    connect(m_nextMonth, &QAbstractButton::clicked, this, &OADatePicker::showNextMonth);
    connect(m_grid, &OADateGrid::datePicked, this, &OADatePicker::datePicked);
    connect(m_grid, &OADateGrid::dayDoubleClicked, this, &OADatePicker::dayDoubleClicked);
    connect(m_grid, &OADateGrid::shownMonthDidChange, this, &OADatePicker::showTitle);
    showTitle();
}

Instant OADatePicker::dateValue() const
{
    return m_grid->dateValue();
}

void OADatePicker::setDateValue(Instant date)
{
    m_grid->setDateValue(date);
}

void OADatePicker::setFirstDayOfTheWeek(std::int64_t preference)
{
    m_grid->setFirstDayOfTheWeek(preference);
}

void OADatePicker::showPreviousMonth()
{
    if (const auto month = inMonthBeside(m_grid->shownMonth(), -1)) {
        m_grid->showMonth(*month);
    }
}

void OADatePicker::showCurrentMonth()
{
    m_grid->showMonth(Clock::now());
}

void OADatePicker::showNextMonth()
{
    if (const auto month = inMonthBeside(m_grid->shownMonth(), 1)) {
        m_grid->showMonth(*month);
    }
}

void OADatePicker::showTitle()
{
    const auto month = m_grid->shownMonth();
    const auto title = DateFormatter::textOfFields(month, u"yMMMM"_qs);
    m_title->setText(title);
    m_grid->setAccessibleName(title);
    m_previousMonth->setEnabled(inMonthBeside(month, -1).has_value());
    m_nextMonth->setEnabled(inMonthBeside(month, 1).has_value());
}
