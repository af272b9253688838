#include "editors/OAPopupDatePicker.h"

#include "editors/OADateGrid.h"
#include "editors/OADateNavigationButton.h"
#include "editors/OADatePicker.h"
#include "editors/OADatePickerButton.h"
#include "editors/OADatePickerTextField.h"
#include "foundation/Clock.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/Utc.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

OAPopupDatePicker& popup()
{
    return OAPopupDatePicker::sharedPopupDatePicker();
}

OADatePicker& picker()
{
    return popup().datePicker();
}

/// A date field in a window, with its calendar open.
class OAPopupDatePickerTest : public testing::Test
{
protected:
    OAPopupDatePickerTest()
        : field(std::make_unique<OADatePickerTextField>(&window))
    {
        window.resize(300, 400);
        window.show();
        QApplication::setActiveWindow(&window);
        field->setFocus();
    }

    void openWith(std::optional<Instant> date)
    {
        field->setDate(date);
        QTest::keyClick(field.get(), Qt::Key_Down, Qt::AltModifier);
        ASSERT_EQ(popup().control(), field.get());
        ASSERT_TRUE(popup().isVisible());
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    static void click(Instant day)
    {
        const auto place = picker().grid().month().placeOfDate(day);
        ASSERT_TRUE(place);
        QTest::mouseClick(&picker().grid(), Qt::LeftButton, {},
                          picker().grid().rectOfPlace(*place).center());
    }

    static void clickButton(const QString& name)
    {
        for (auto* const button : picker().findChildren<OADateNavigationButton*>()) {
            if (button->accessibleName() == name) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        FAIL() << name.toStdString();
    }

    static bool isShown(Instant day)
    {
        return picker().grid().month().placeOfDate(day).has_value();
    }

    const ScopedRegionalSettings regional{RegionalSettings("en_GB", "en_GB", "UTC")};
    const FixedClock clock{utc(2013, 7, 15, 14, 30, 5)};
    QWidget window;
    std::unique_ptr<OADatePickerTextField> field;
};

} // namespace

TEST_F(OAPopupDatePickerTest, EachPickGoesIntoTheFieldAtOnceWithItsTimeOfDay)
{
    openWith(utc(2013, 7, 10, 9, 41, 7));
    const QSignalSpy changes(field.get(), &OASteppableTextField::objectValueDidChange);
    click(utc(2013, 7, 20));
    EXPECT_EQ(field->date(), utc(2013, 7, 20, 9, 41, 7));
    click(utc(2013, 8, 2));
    EXPECT_EQ(field->date(), utc(2013, 8, 2, 9, 41, 7));
    EXPECT_TRUE(isShown(utc(2013, 8, 31)));
    EXPECT_EQ(changes.count(), 2);
    press(Qt::Key_Return);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(popup().control(), nullptr);
    EXPECT_EQ(field->text(), u"02/08/2013"_qs);
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(OAPopupDatePickerTest, ItClosesInManyWaysAndOnlyEscapePutsTheDateBack)
{
    struct Row
    {
        const char* name;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        bool putsBack;
    };
    const std::vector<Row> rows = {
        {"Return", Qt::Key_Return, {}, false},
        {"Enter", Qt::Key_Enter, Qt::KeypadModifier, false},
        {"Control and period", Qt::Key_Period, Qt::ControlModifier, false},
        {"Escape", Qt::Key_Escape, {}, true},
    };
    for (const auto& [name, key, modifiers, putsBack] : rows) {
        for (const auto start : {std::optional(utc(2013, 7, 10, 9)), std::optional<Instant>()}) {
            openWith(start);
            press(Qt::Key_Period);
            press(Qt::Key_Right);
            press(Qt::Key_Right);
            EXPECT_NE(field->date(), start) << name;
            press(key, modifiers);
            EXPECT_FALSE(popup().isVisible()) << name;
            EXPECT_EQ(field->date() == start, putsBack) << name;
        }
    }
    openWith(utc(2013, 7, 10));
    click(utc(2013, 7, 11));
    const auto place = picker().grid().selectedPlace();
    QTest::mouseDClick(&picker().grid(), Qt::LeftButton, {},
                       picker().grid().rectOfPlace(*place).center());
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(field->date(), utc(2013, 7, 11));
}

TEST_F(OAPopupDatePickerTest, AFieldWithoutADateKeepsItsTextUntilAPick)
{
    field->setText(u"31 February"_qs);
    field->toggleDatePicker();
    EXPECT_EQ(picker().dateValue(), utc(2013, 7, 15));
    press(Qt::Key_Escape);
    EXPECT_EQ(field->text(), u"31 February"_qs);

    field->toggleDatePicker();
    press(Qt::Key_Space);
    EXPECT_EQ(field->date(), utc(2013, 7, 15));
    press(Qt::Key_Escape);
    EXPECT_EQ(field->date(), std::nullopt);
    EXPECT_EQ(field->text(), QString());
}

TEST_F(OAPopupDatePickerTest, TurningThePagesPicksNothing)
{
    const auto date = utc(2013, 7, 10, 9);
    openWith(date);
    const QSignalSpy changes(field.get(), &OASteppableTextField::objectValueDidChange);
    clickButton(u"Previous Month"_qs);
    clickButton(u"Previous Month"_qs);
    EXPECT_TRUE(isShown(utc(2013, 5, 15)));
    clickButton(u"Back to Today"_qs);
    clickButton(u"Next Month"_qs);
    EXPECT_TRUE(isShown(utc(2013, 8, 15)));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(picker().dateValue(), date);
    // Keys go from the date that is held.
    picker().grid().setFocus();
    press(Qt::Key_Left);
    EXPECT_EQ(field->date(), utc(2013, 7, 9, 9));
    EXPECT_TRUE(isShown(utc(2013, 7, 15)));
}

TEST_F(OAPopupDatePickerTest, KeysMoveTheDate)
{
    struct Row
    {
        Qt::Key key;
        Qt::LayoutDirection direction;
        Instant to;
    };
    const std::vector<Row> rows = {
        {Qt::Key_Left, Qt::LeftToRight, utc(2013, 7, 30)},
        {Qt::Key_Right, Qt::LeftToRight, utc(2013, 8, 1)},
        {Qt::Key_Left, Qt::RightToLeft, utc(2013, 8, 1)},
        {Qt::Key_Right, Qt::RightToLeft, utc(2013, 7, 30)},
        {Qt::Key_Up, Qt::LeftToRight, utc(2013, 7, 24)},
        {Qt::Key_Down, Qt::LeftToRight, utc(2013, 8, 7)},
        {Qt::Key_PageUp, Qt::LeftToRight, utc(2013, 6, 30)},
        {Qt::Key_PageDown, Qt::LeftToRight, utc(2013, 8, 31)},
        {Qt::Key_Home, Qt::LeftToRight, utc(2013, 7, 1)},
        {Qt::Key_End, Qt::LeftToRight, utc(2013, 7, 31)},
    };
    for (const auto& [key, direction, to] : rows) {
        window.setLayoutDirection(direction);
        openWith(utc(2013, 7, 31));
        const auto& grid = picker().grid();
        EXPECT_EQ(grid.rectOfPlace(0).x() > grid.rectOfPlace(1).x(), direction == Qt::RightToLeft);
        press(key);
        EXPECT_EQ(field->date(), to) << key;
        EXPECT_TRUE(isShown(to)) << key;
        press(Qt::Key_Escape);
    }
}

TEST_F(OAPopupDatePickerTest, NeitherTheEdgesOfTimeNorMissingTimesLeadItAstray)
{
    for (const auto edge : {Instant::earliest(), Instant::latest()}) {
        openWith(edge);
        for (const auto key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Down, Qt::Key_PageDown,
                               Qt::Key_Home, Qt::Key_End}) {
            press(key);
            EXPECT_TRUE(!field->date() || field->date()->isSupported());
        }
        for (int turn = 0; turn < 3; ++turn) {
            picker().showPreviousMonth();
            picker().showNextMonth();
            picker().showNextMonth();
        }
        EXPECT_TRUE(picker().grid().month().firstPlaceInMonth());
        press(Qt::Key_Escape);
    }

    // Midnight was left out on the 4th; the days after it have it again.
    const ScopedRegionalSettings brazil(RegionalSettings("pt_BR", "pt_BR", "America/Sao_Paulo"));
    openWith(utc(2018, 11, 3, 3));
    press(Qt::Key_Right);
    EXPECT_EQ(field->date(), utc(2018, 11, 4, 3));
    press(Qt::Key_Right);
    EXPECT_EQ(field->date(), utc(2018, 11, 5, 2));
    press(Qt::Key_Return);
    // The 30th does not exist.
    const ScopedRegionalSettings samoa(RegionalSettings("en_GB", "en_GB", "Pacific/Apia"));
    openWith(utc(2011, 12, 29, 22));
    press(Qt::Key_Right);
    EXPECT_EQ(field->text(), u"31/12/2011"_qs);
    press(Qt::Key_Home);
    EXPECT_EQ(field->text(), u"01/12/2011"_qs);
}

TEST_F(OAPopupDatePickerTest, ThereIsOneForAllFieldsAndItGoesWithItsField)
{
    openWith(utc(2013, 7, 10));
    OADatePickerTextField other(&window);
    other.move(0, 50);
    other.show();
    other.toggleDatePicker();
    EXPECT_EQ(popup().control(), &other);
    press(Qt::Key_Right);
    EXPECT_EQ(field->date(), utc(2013, 7, 10));
    EXPECT_EQ(other.date(), utc(2013, 7, 16));
    other.toggleDatePicker();
    EXPECT_FALSE(popup().isVisible());

    openWith(utc(2013, 7, 10));
    window.hide();
    EXPECT_FALSE(popup().isVisible());
    window.show();
    openWith(utc(2013, 7, 10));
    field.reset();
    EXPECT_EQ(popup().control(), nullptr);
    EXPECT_FALSE(popup().isVisible());
}

TEST_F(OAPopupDatePickerTest, APressOutsideClosesItAndOnTheButtonDoesNotOpenItAgain)
{
    // Off screen no press is replayed; what is tested is what keeps it from being.
    const auto replaysPressAt = [](const QWidget& widget, const QPoint& point) {
        QTest::mousePress(&popup(), Qt::LeftButton, {},
                          popup().mapFromGlobal(widget.mapToGlobal(point)));
        return !popup().testAttribute(Qt::WA_NoMouseReplay);
    };
    openWith(utc(2013, 7, 10));
    EXPECT_FALSE(replaysPressAt(field->calendarButton(), {3, 3}));
    EXPECT_FALSE(popup().isVisible());
    openWith(utc(2013, 7, 10));
    EXPECT_TRUE(replaysPressAt(window, {290, 390}));
    EXPECT_FALSE(popup().isVisible());
}

TEST_F(OAPopupDatePickerTest, AScreenReaderMeetsItsDaysByTheirWholeDates)
{
    openWith(utc(2013, 7, 10));
    auto* const grid = QAccessible::queryAccessibleInterface(&picker().grid());
    EXPECT_EQ(grid->text(QAccessible::Name), u"July 2013"_qs);
    auto* const day = grid->child(9);
    EXPECT_EQ(day->text(QAccessible::Name), u"Wednesday, 10 July 2013"_qs);
    EXPECT_TRUE(day->state().selected);
    const auto middle = day->rect().center();
    EXPECT_EQ(grid->childAt(middle.x(), middle.y()), day);
    EXPECT_EQ(grid->indexOfChild(day), 9);
    EXPECT_EQ(grid->focusChild(), day);

    grid->child(10)->actionInterface()->doAction(u"Select"_qs);
    EXPECT_EQ(field->date(), utc(2013, 7, 11));
    EXPECT_FALSE(day->state().selected);
    day->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(field->date(), utc(2013, 7, 10));
    EXPECT_FALSE(popup().isVisible());
}
