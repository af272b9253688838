#include "editors/AmountField.h"
#include "editors/RateField.h"
#include "editors/TypedTextGuard.h"
#include "foundation/RegionalSettings.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

/// What the field holds, in plain notation; "absent" and "unreadable".
std::string numberIn(const NumberField& field)
{
    if (!field.isReadable()) {
        return "unreadable";
    }
    return field.number() ? field.number()->toPlainText() : "absent";
}

void type(QWidget& field, const QString& text)
{
    static_cast<QLineEdit&>(field).selectAll();
    QTest::keyClicks(&field, text);
}

/// A form with two fields; the first has the focus.
class NumberFieldTest : public testing::Test
{
protected:
    NumberFieldTest()
    {
        other.move(0, 40);
        form.show();
        QApplication::setActiveWindow(&form);
        field.setFocus();
    }

    ScopedRegionalSettings regional{{"en_GB", "en_GB", "Europe/London"}};
    QWidget form;
    AmountField field{&form};
    QLineEdit other{&form};
};

} // namespace

TEST_F(NumberFieldTest, AmountsAreShownInTheirCurrencyAndKeptAsTyped)
{
    struct Row
    {
        const char* locale;
        const char* currency;
        const char* amount;
        const char* shown;
    };
    for (const auto& row :
         {Row{"en_GB", "GBP", "1234.5", "1,234.50"}, Row{"en_GB", "GBP", "0.12345", "0.12345"},
          Row{"en_GB", "JPY", "128000", "128,000"}, Row{"en_GB", "KWD", "-1.5", "-1.500"},
          Row{"de_DE", "EUR", "1234.5", "1.234,50"},
          Row{"en_GB", "GOLD", "99999999999999999999999999999999999999",
              "99,999,999,999,999,999,999,999,999,999,999,999,999.00"}}) {
        const ScopedRegionalSettings there({row.locale, row.locale, "Europe/London"});
        field.setCurrency(QString::fromLatin1(row.currency));
        field.setNumber(NSDecimalNumber::fromText(row.amount));
        EXPECT_EQ(field.text().toStdString(), row.shown);
    }
    field.setCurrency(u"GBP"_qs);
    type(field, u"1,234.5"_qs);
    EXPECT_EQ(numberIn(field), "1234.5");
    EXPECT_EQ(field.text(), u"1,234.5"_qs);
    other.setFocus();
    EXPECT_EQ(field.text(), u"1,234.50"_qs);
    field.setText(u" "_qs);
    EXPECT_EQ(numberIn(field), "absent");
    field.setNumber(std::nullopt);
    EXPECT_EQ(field.text(), QString());
}

TEST_F(NumberFieldTest, TypingThatIsTakenBackLeavesTheValueThatWasShown)
{
    field.setCurrency(QStringLiteral("GBP"));
    field.setNumber(NSDecimalNumber::fromText("12.3"));
    const auto shown = field.text();
    type(field, QStringLiteral("7"));
    EXPECT_EQ(numberIn(field), "7");
    field.undo();
    EXPECT_EQ(field.text(), shown);
    EXPECT_EQ(numberIn(field), "12.3");
    field.redo();
    EXPECT_EQ(numberIn(field), "7");
}

TEST_F(NumberFieldTest, ATextThatIsNoNumberIsMarkedAndKeepsTheFocusInItsForm)
{
    type(field, u"12 apples"_qs);
    EXPECT_EQ(numberIn(field), "unreadable");
    EXPECT_EQ(field.invalidReason(), QString());
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(field.invalidReason(), u"This is not a number."_qs);
    EXPECT_EQ(field.text(), u"12 apples"_qs);
    QTest::mouseClick(&other, Qt::LeftButton);
    EXPECT_TRUE(field.hasFocus());
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(numberIn(field), "unreadable");

    field.setText(QString(39, u'9'));
    EXPECT_EQ(field.invalidReason(), u"A number has at most 38 digits."_qs);
    type(field, u"12"_qs);
    EXPECT_EQ(field.invalidReason(), QString());
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus());

    // The form is left, and later shows something else.
    field.setFocus();
    type(field, u"x"_qs);
    field.clearFocus();
    EXPECT_FALSE(field.hasFocus());
    EXPECT_FALSE(field.guard().commitEditing());
    field.setNumber(NSDecimalNumber(7));
    EXPECT_EQ(field.invalidReason(), QString());
    EXPECT_TRUE(field.guard().commitEditing());
}

TEST_F(NumberFieldTest, AnAmountIsRefusedThatItsCurrencyCannotHave)
{
    struct Row
    {
        const char* locale;
        const char* currency;
        const char* typed;
        const char* number;
        const char* reason;
    };
    const auto* const unreadable = "unreadable";
    for (const auto& row : std::to_array<Row>({
             {"en_GB", "EUR", "€ 4.000", unreadable,
              "An amount here has at most 2 decimals. Did you mean 4,000.00?"},
             {"de_DE", "EUR", "€ 4.000", "4000", ""},
             {"de_DE", "EUR", "4,000", unreadable,
              "An amount here has at most 2 decimals. Did you mean 4.000,00?"},
             {"en_GB", "GBP", "0.125", unreadable, "An amount here has at most 2 decimals."},
             {"en_GB", "JPY", "500.5", unreadable, "An amount here has no decimals."},
             {"en_GB", "KWD", "1.234", "1.234", ""},
             {"en_GB", "KWD", "1.2345", unreadable, "An amount here has at most 3 decimals."},
             {"de_CH", "KWD", "1,234", unreadable, "This can mean 1’234.000 or 1.234."},
             {"en_GB", "GBP", "gbp 1", "1", ""},
             {"en_GB", "AUD", "$1", "1", ""},
             {"en_GB", "GBP", "€4", unreadable, "Amounts here are in GBP, not in €."},
             {"en_GB", "GBP", "£4 EUR", unreadable, "Amounts here are in GBP, not in EUR."},
             {"en_GB", "GOLD", "€4", "4", ""},
             {"en_GB", "GBP", "1234567890123456789012345678901234567890", unreadable,
              "A number has at most 38 digits."},
         })) {
        const ScopedRegionalSettings there({row.locale, row.locale, "Europe/London"});
        field.setCurrency(QString::fromLatin1(row.currency));
        field.setText(QString::fromUtf8(row.typed));
        field.guard().commitEditing();
        EXPECT_EQ(numberIn(field), row.number) << row.locale << ' ' << row.typed;
        EXPECT_EQ(field.invalidReason().toStdString(), row.reason) << row.typed;
    }
}

TEST_F(NumberFieldTest, WhatWasStoredIsTakenAsItIsAlsoWhenTypedAgain)
{
    field.setCurrency(u"GBP"_qs);
    field.setNumber(NSDecimalNumber::fromText("1.234"));
    other.setFocus();
    EXPECT_EQ(numberIn(field), "1.234");
    EXPECT_EQ(field.invalidReason(), QString());
    field.setFocus();
    type(field, u"1.23"_qs);
    EXPECT_EQ(numberIn(field), "1.23");
    QTest::keyClicks(&field, u"4"_qs);
    EXPECT_EQ(numberIn(field), "1.234");
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(numberIn(field), "2.234");
    EXPECT_TRUE(field.guard().commitEditing());
}

TEST_F(NumberFieldTest, OfTwoTextsThatAreNoNumbersTheLaterKeepsTheFocus)
{
    AmountField second(&form);
    second.show();
    second.setFocus();
    field.setText(u"one"_qs);
    second.setText(u"two"_qs);
    field.setFocus();
    EXPECT_TRUE(second.hasFocus());
}

TEST_F(NumberFieldTest, ADoubleClickSelectsTheNumberWhole)
{
    field.setNumber(NSDecimalNumber::fromText("12345678.90"));
    QTest::mouseDClick(&field, Qt::LeftButton, {}, field.rect().center());
    EXPECT_EQ(field.selectedText(), field.text());
}

TEST_F(NumberFieldTest, ArrowKeysStepExactlyAndAnnounceIt)
{
    int changes = 0;
    QObject::connect(&field, &OASteppableTextField::objectValueDidChange, &field,
                     [&changes] { ++changes; });
    field.setNumber(NSDecimalNumber::fromText("99999999999999999999.01"));
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(numberIn(field), "100000000000000000000.01");
    QTest::keyClick(&field, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(numberIn(field), "99999999999999999990.01");
    EXPECT_EQ(field.text(), u"99,999,999,999,999,999,990.01"_qs);
    EXPECT_EQ(changes, 2);
    QTest::keyClick(&field, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(changes, 2);
}

TEST(RateFieldTest, KeepsTheFractionThatThePercentageSpells)
{
    const ScopedRegionalSettings regional({"en_GB", "en_GB", "Europe/London"});
    RateField field;
    for (const auto& [typed, fraction] :
         {std::pair(u"19.9"_qs, 0.199), std::pair(u"19,9 %"_qs, 0.199),
          std::pair(u"0.07"_qs, 0.0007), std::pair(u"-3"_qs, -0.03),
          std::pair(u"21.399999999999998"_qs, 0.21399999999999998)}) {
        field.setText(typed);
        EXPECT_EQ(field.rate(), fraction) << typed.toStdString();
    }
    for (const double rate : {0.199, 0.1 + 0.2, 12345.0, 5e-18, 0.0}) {
        field.setRate(rate);
        EXPECT_EQ(field.rate(), rate) << field.text().toStdString();
        field.setText(field.text() + u' ');
        EXPECT_EQ(field.rate(), rate) << field.text().toStdString();
    }
    field.setRate(0.199);
    EXPECT_EQ(field.text(), u"19.9%"_qs);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.rate(), 0.209);
    field.setRate(1e300);
    EXPECT_EQ(field.text(), QString());
}
