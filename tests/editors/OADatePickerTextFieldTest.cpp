#include "editors/OADatePickerTextField.h"

#include "editors/OADatePickerButton.h"
#include "foundation/Clock.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/Utc.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

/// A date field in a window, and what it announces.
class OADatePickerTextFieldTest : public testing::Test
{
protected:
    OADatePickerTextFieldTest()
    {
        QObject::connect(&field, &OASteppableTextField::objectValueDidChange, &field,
                         [this] { announced.push_back(field.date()); });
        window.resize(300, 100);
        other.move(0, 50);
        window.show();
        QApplication::setActiveWindow(&window);
        field.setFocus();
    }

    void type(const QString& text)
    {
        field.selectAll();
        QTest::keyClicks(&field, text);
    }

    const ScopedRegionalSettings regional{RegionalSettings("en_GB", "en_GB", "UTC")};
    FixedClock clock{utc(2013, 7, 15, 14, 30, 5)};
    QWidget window;
    OADatePickerTextField field{&window};
    QLineEdit other{&window};
    std::vector<std::optional<Instant>> announced;
};

} // namespace

TEST_F(OADatePickerTextFieldTest, KeysStepTheDateWithinItsBounds)
{
    struct Row
    {
        const char* name;
        std::optional<Instant> from;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        std::optional<Instant> to; ///< Absent for a refusal.
    };
    const auto now = Clock::now();
    const auto shift = Qt::ShiftModifier;
    const std::vector<Row> rows = {
        {"a day later", utc(2013, 6, 30, 9), Qt::Key_Up, {}, utc(2013, 7, 1, 9)},
        {"a day earlier", now, Qt::Key_Down, {}, utc(2013, 7, 14, 14, 30, 5)},
        {"a month later", utc(2013, 5, 31), Qt::Key_Up, shift, utc(2013, 6, 30)},
        {"a month earlier", utc(2013, 3, 31), Qt::Key_Down, shift, utc(2013, 2, 28)},
        {"on the keypad", now, Qt::Key_Down, Qt::KeypadModifier, utc(2013, 7, 14, 14, 30, 5)},
        {"from nothing", std::nullopt, Qt::Key_Down, {}, utc(2013, 7, 14, 14, 30, 5)},
        {"from nothing into the future", std::nullopt, Qt::Key_Up, {}, std::nullopt},
        {"into the future", now, Qt::Key_Up, {}, std::nullopt},
        {"onto the last", utc(2013, 7, 14, 14, 30, 5), Qt::Key_Up, {}, now},
        {"onto the first", utc(2013, 1, 2), Qt::Key_Down, {}, utc(2013, 1, 1)},
        {"before the first", utc(2013, 1, 1), Qt::Key_Down, {}, std::nullopt},
    };
    field.setMinDate(utc(2013, 1, 1));
    field.setMaxDate(now);
    for (const auto& [name, from, key, modifiers, to] : rows) {
        field.setDate(from);
        announced.clear();
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        event.setAccepted(false);
        QApplication::sendEvent(&field, &event);
        EXPECT_EQ(event.isAccepted(), to.has_value()) << name;
        EXPECT_EQ(field.date(), to ? to : from) << name;
        EXPECT_EQ(announced.size(), to ? 1U : 0U) << name;
    }
    EXPECT_FALSE(field.validateSteppedObjectValue(PropertyValue()));
    EXPECT_FALSE(field.validateSteppedObjectValue(PropertyValue(1.0)));
    field.setDate(now);
    field.setReadOnly(true);
    EXPECT_FALSE(field.stepObjectValue(OATextFieldFormatter::Step::Down));
}

TEST_F(OADatePickerTextFieldTest, AStepperStepsByWhetherItsValueGrew)
{
    field.setDate(utc(2013, 7, 10));
    for (const double value : {1.0, 2.0, 0.5}) {
        field.stepperAction(value);
    }
    EXPECT_EQ(field.date(), utc(2013, 7, 11));
    EXPECT_EQ(field.stepperTracking(), 0.5);
}

TEST_F(OADatePickerTextFieldTest, TheDateFollowsTheTextAsItIsTyped)
{
    field.setDate(utc(2013, 7, 1, 9));
    EXPECT_EQ(field.text(), u"01/07/2013"_qs);
    EXPECT_TRUE(announced.empty());
    // Whoever shows the date anew at each change does not get in the way of the typing.
    QObject::connect(&field, &OASteppableTextField::objectValueDidChange, &window,
                     [this] { field.setDate(field.date()); });

    type(u"5 Ju"_qs);
    EXPECT_EQ(field.text(), u"5 Ju"_qs);
    EXPECT_EQ(announced.back(), std::nullopt);
    QTest::keyClicks(&field, u"ne"_qs);
    EXPECT_EQ(announced.back(), utc(2013, 6, 5));
    QTest::keyClicks(&field, u"x"_qs);
    EXPECT_EQ(announced.back(), std::nullopt);
    QTest::keyClick(&field, Qt::Key_Return);
    other.setFocus();
    EXPECT_EQ(field.text(), u"5 Junex"_qs);
    EXPECT_FALSE(field.stepObjectValue(OATextFieldFormatter::Step::Down));
    EXPECT_EQ(field.text(), u"5 Junex"_qs);

    field.setFocus();
    field.end(false);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(announced.back(), utc(2013, 6, 5));
    announced.clear();
    other.setFocus();
    EXPECT_EQ(field.text(), u"05/06/2013"_qs);

    field.setFocus();
    type(u"yesterday"_qs);
    QTest::keyClick(&field, Qt::Key_Enter);
    EXPECT_EQ(field.text(), u"14/07/2013"_qs);
    EXPECT_EQ(field.date(), utc(2013, 7, 14));
}

TEST_F(OADatePickerTextFieldTest, LeavingTheFieldKeepsTheTimeOfDay)
{
    const auto date = utc(2013, 7, 1, 9, 41, 7);
    field.setDate(date);
    other.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.date(), date);
    EXPECT_TRUE(announced.empty());
    type(u"01/07/201"_qs);
    EXPECT_NE(field.date(), date);
    QTest::keyClicks(&field, u"3"_qs);
    EXPECT_EQ(field.date(), date) << "typed back to what it was";
}

TEST_F(OADatePickerTextFieldTest, AssistiveProgramsSetTheTextAndFindTheButton)
{
    QLabel label(u"Date"_qs, &window);
    label.setBuddy(&field);
    auto* const accessible = QAccessible::queryAccessibleInterface(&field);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"Date"_qs);
    accessible->setText(QAccessible::Value, u"2013-07-04"_qs);
    EXPECT_EQ(field.date(), utc(2013, 7, 4));
    EXPECT_EQ(announced.size(), 1U);
    ASSERT_EQ(accessible->childCount(), 1);
    EXPECT_EQ(accessible->child(0)->text(QAccessible::Name), u"Choose Date"_qs);
}

TEST_F(OADatePickerTextFieldTest, NonsenseIsNoDate)
{
    QGuiApplication::clipboard()->setText(QString(1'000'000, u'7') + u"\n\n");
    field.paste();
    EXPECT_EQ(field.date(), std::nullopt);
    type(u" "_qs);
    field.clear();
    EXPECT_EQ(announced.back(), std::nullopt);
    // A stored date can be any number.
    for (const double seconds : {std::numeric_limits<double>::quiet_NaN(), 1e300, -1e300, 1e12}) {
        field.setDate(Instant(seconds));
        other.setFocus();
        field.setFocus();
        EXPECT_TRUE(field.stepObjectValue(OATextFieldFormatter::Step::LargeDown));
        EXPECT_EQ(field.date(), utc(2013, 6, 15, 14, 30, 5));
    }
    field.setDate(Instant::latest());
    field.stepObjectValue(OATextFieldFormatter::Step::LargeUp);
    EXPECT_EQ(field.text(), u"31/12/9999"_qs);
}

TEST_F(OADatePickerTextFieldTest, TheDefaultDateIsThatOfTheDefaultFieldOrToday)
{
    EXPECT_EQ(field.defaultDate(), utc(2013, 7, 15));
    {
        OADatePickerTextField source;
        field.setDefaultTextField(&source);
        EXPECT_EQ(field.defaultDate(), utc(2013, 7, 15));
        source.setDate(utc(2013, 1, 2));
        EXPECT_EQ(field.defaultDate(), utc(2013, 1, 2));
    }
    EXPECT_EQ(field.defaultDate(), utc(2013, 7, 15));
}

TEST_F(OADatePickerTextFieldTest, TheTextNeverRunsUnderTheButton)
{
    EXPECT_EQ(OADatePickerTextField::calendarRectForFrame({10, 20, 100, 26}, {16, 15}),
              QRect(92, 25, 16, 15));
    EXPECT_EQ(OADatePickerTextField::calendarRectForFrame({0, 0, 100, 10}, {16, 15}),
              QRect(82, -3, 16, 15));

    const auto& button = field.calendarButton();
    const int ownMargin = field.textMargins().left();
    field.resize(120, 26);
    EXPECT_EQ(field.rect().marginsRemoved(field.textMargins()).right() + 1, button.x());
    field.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(field.rect().marginsRemoved(field.textMargins()).left(),
              button.geometry().right() + 1);
    field.setDatePickerHidden(true);
    EXPECT_FALSE(button.isVisible());
    EXPECT_EQ(field.textMargins().left(), ownMargin);
    field.setReadOnly(true);
    EXPECT_FALSE(button.isEnabled());
}
