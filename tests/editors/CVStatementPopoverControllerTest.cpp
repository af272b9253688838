#include "editors/CVStatementPopoverController.h"

#include "editors/OADatePickerTextField.h"
#include "editors/VRClone.h"
#include "foundation/Clock.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/CardStore.h"
#include "tests/support/EditorPopover.h"
#include "tests/support/Utc.h"
#include "widgets/AccessibleAnnouncements.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include <array>

namespace {

/// An editor for the statements of a card that has two, on the 20th of July 2013.
class CVStatementPopoverControllerTest : public testing::Test
{
protected:
    CVStatementPopoverControllerTest()
    {
        store.save();
        editor.setContext(&scratch);
        editor.setCard(&card);
    }

    void openFor(CVStatement& original)
    {
        editor.setStatement(
            &static_cast<CVStatement&>(VRClone::vrShallowCloneInContext(original, scratch)));
        editor.setOriginalStatement(&original);
        popover.show();
    }

    void openForNew()
    {
        editor.createNewStatement();
        popover.show();
        clock.advance(1);
        editor.triggerRefresh();
    }

    QLineEdit& field(const QString& name) { return *editor.view().findChild<QLineEdit*>(name); }
    QPushButton& okButton() { return *editor.view().findChild<QPushButton*>(u"okButton"_qs); }
    QString line() { return editor.view().findChild<QLabel*>(u"line"_qs)->text(); }

    ScopedRegionalSettings regional{{"en_GB", "en_GB", "UTC"}};
    FixedClock clock{utc(2013, 7, 20, 12)};
    CardStore store;
    CVCard& card = store.insertCard(u"Everyday"_qs);
    CVStatement& june =
        store.insertStatement(&card, utc(2013, 6, 15), {"800.50", "5000", "200", 0.199});
    CVStatement& july =
        store.insertStatement(&card, utc(2013, 7, 15), {"1000", "6000", "300", 0.1 + 0.2});
    NSManagedObjectContext scratch{store.coordinator()};
    CVStatementPopoverController editor;
    EditorPopover popover{editor};
};

} // namespace

TEST_F(CVStatementPopoverControllerTest, ANewStatementBeginsAsTheLastOneButForItsBalance)
{
    openForNew();
    const auto& added = *editor.statement();
    EXPECT_EQ(added.date(), utc(2013, 7, 20, 12));
    EXPECT_EQ(editor.date(), added.date());
    EXPECT_EQ(added.balance(), NSDecimalNumber());
    EXPECT_EQ(added.limit(), july.limit());
    EXPECT_EQ(added.payment(), july.payment());
    EXPECT_EQ(added.annualPercentageRate(), 0.1 + 0.2);
    EXPECT_EQ(added.card(), nullptr);
    EXPECT_EQ(editor.originalStatement(), nullptr);
    EXPECT_EQ(field(u"limitField"_qs).text(), u"6,000.00"_qs);

    // July has its statement; May has none.
    EXPECT_FALSE(okButton().isEnabled());
    EXPECT_EQ(okButton().text(), u"Add"_qs);
    field(u"dateField"_qs).setText(u"10/05/2013"_qs);
    EXPECT_TRUE(okButton().isEnabled());

    editor.setCard(&store.insertCard(u"Empty"_qs));
    EXPECT_EQ(editor.createNewStatement().limit(), NSDecimalNumber());

    field(u"dateField"_qs).setText(u"neither a date"_qs);
    auto& undated = store.insertStatement(&card, std::nullopt);
    editor.setOriginalStatement(&undated);
    editor.setStatement(
        &static_cast<CVStatement&>(scratch.insertNewObjectForEntityForName("Statement")));
    EXPECT_EQ(field(u"dateField"_qs).text(), QString()) << "nor one of another statement";
}

TEST_F(CVStatementPopoverControllerTest, ADateMayBeConfirmedInAFreeMonthThatHasCome)
{
    struct Row
    {
        const char* name;
        CVStatement* original;
        std::optional<Instant> date;
        bool canAdd;
    };
    auto& second = store.insertStatement(&card, utc(2013, 6, 20));
    for (const auto& row : std::to_array<Row>({
             {"new, in a month with a statement", nullptr, utc(2013, 6, 1), false},
             {"new, in the same month of another year", nullptr, utc(2012, 6, 15), true},
             {"new, now", nullptr, utc(2013, 7, 20, 12), false},
             {"new, in the future", nullptr, utc(2013, 8, 1), false},
             {"no date", nullptr, std::nullopt, false},
             {"no date, of one", &july, std::nullopt, false},
             {"another day of its month", &july, utc(2013, 7, 1), true},
             {"the month of another", &july, utc(2013, 6, 30), false},
             {"a free month", &july, utc(2013, 5, 31), true},
             {"the future", &july, utc(2013, 7, 21), false},
             {"the first of two in its month", &june, utc(2013, 6, 1), true},
             {"the second of two in its month", &second, utc(2013, 6, 25), false},
         })) {
        editor.setOriginalStatement(row.original);
        editor.setDate(row.date);
        EXPECT_EQ(editor.canAddStatementForDate(), row.canAdd) << row.name;
        EXPECT_EQ(okButton().isEnabled(), row.canAdd) << row.name;
    }
}

TEST_F(CVStatementPopoverControllerTest, TheDateIsTheStatementsOnlyOnceConfirmed)
{
    openFor(july);
    EXPECT_EQ(okButton().text(), u"Update"_qs);
    EXPECT_EQ(field(u"dateField"_qs).text(), u"15/07/2013"_qs);
    field(u"dateField"_qs).setText(u"nonsense"_qs);
    EXPECT_FALSE(okButton().isEnabled());
    EXPECT_EQ(field(u"dateField"_qs).text(), u"nonsense"_qs);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(popover.isShown());
    field(u"dateField"_qs).setText(u"16/07/2013"_qs);
    EXPECT_TRUE(okButton().isEnabled());
    EXPECT_EQ(editor.statement()->date(), utc(2013, 7, 15));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(popover.isShown());
    EXPECT_FALSE(editor.isDirty());
    EXPECT_EQ(editor.statement()->date(), utc(2013, 7, 15));

    openFor(july);
    field(u"dateField"_qs).setText(u"16/07/2013"_qs);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(popover.isShown());
    EXPECT_TRUE(editor.isDirty());
    EXPECT_EQ(editor.statement()->date(), utc(2013, 7, 16));
    EXPECT_FALSE(store.context().hasChanges());
}

TEST_F(CVStatementPopoverControllerTest, FieldsGoRoundInOrderAndAreCalledAsTheirLabels)
{
    openFor(july);
    QStringList names;
    for (int i = 0; i < 8; ++i) {
        auto* const focused = QApplication::focusWidget();
        names.append(QAccessible::queryAccessibleInterface(focused)->text(QAccessible::Name));
        QTest::keyClick(focused, Qt::Key_Tab);
    }
    EXPECT_EQ(names.join(u' ').toStdString(), "Date Balance Limit Payment APR Update Cancel Date");
}

TEST_F(CVStatementPopoverControllerTest, TheLineSaysWhatTheTypedNumbersMean)
{
    openFor(july);
    field(u"rateField"_qs).setText(u"12"_qs);
    EXPECT_EQ(line(), u"4 m ⟶ 15/11/2013"_qs);
    EXPECT_EQ(editor.statement()->annualPercentageRate(), 0.12);
    field(u"dateField"_qs).setText(u"15/03/2013"_qs);
    EXPECT_EQ(line(), u"4 m ⟶ 15/07/2013"_qs);
    field(u"paymentField"_qs).setText(u"£10"_qs);
    EXPECT_EQ(line(), u"never"_qs);
    field(u"paymentField"_qs).setText(u"300 pounds"_qs);
    EXPECT_EQ(line(), QString());
    field(u"paymentField"_qs).setText(u"300"_qs);
    field(u"dateField"_qs).setText(u"15/03/2013"_qs);
    field(u"balanceField"_qs).clear();
    EXPECT_EQ(line(), QString());
    EXPECT_EQ(editor.statement()->balance(), std::nullopt);
}

TEST_F(CVStatementPopoverControllerTest, TheLineSaysWhyTheDateCannotBeConfirmed)
{
    static QStringList alerts;
    const auto hear = [](QAccessibleEvent& event) {
        if (event.type() == QAccessible::Alert) {
            alerts.append(event.accessibleInterface()->text(QAccessible::Name));
        }
    };
    openForNew();
    EXPECT_EQ(line(), u"July 2013 has a statement already, of 15/07/2013."_qs);
    openFor(july);
    const auto size = editor.view().size();
    AccessibleAnnouncements::setListener(hear);
    for (const auto& [date, reason] :
         {std::pair(QString(), u"There is no date."_qs),
          {u"soon"_qs, u"This is not a date."_qs},
          {u"15/03/2014"_qs, u"This date is still to come."_qs},
          {u"20/06/2013"_qs, u"June 2013 has a statement already, of 15/06/2013."_qs},
          {u"15/03/2013"_qs, QString()}}) {
        field(u"dateField"_qs).setText(date);
        EXPECT_EQ(okButton().isEnabled(), reason.isEmpty());
        EXPECT_EQ(line(), reason.isEmpty() ? u"4 m ⟶ 15/07/2013"_qs : reason);
        EXPECT_EQ(okButton().toolTip(), reason);
        EXPECT_EQ(okButton().accessibleDescription(), reason);
        EXPECT_EQ(field(u"dateField"_qs).accessibleDescription(), reason);
        EXPECT_EQ(editor.view().sizeHint(), size);
    }
    AccessibleAnnouncements::setListener(nullptr);
    EXPECT_EQ(alerts.size(), 4) << "each reason once";
}

TEST_F(CVStatementPopoverControllerTest, TheLineSaysWhatConfirmingWillCorrect)
{
    const auto limitRaised = u"The limit will be raised to the balance, £9,000.00."_qs;
    auto& balance = field(u"balanceField"_qs);
    auto& payment = field(u"paymentField"_qs);
    openFor(july);
    balance.setText(u"9000"_qs);
    EXPECT_EQ(line(), limitRaised);
    field(u"limitField"_qs).setText(u"9000"_qs);
    payment.setText(u"0"_qs);
    EXPECT_EQ(line(), u"A payment of nothing will become the whole balance, £9,000.00."_qs);
    field(u"limitField"_qs).setText(u"1"_qs);
    EXPECT_EQ(line(), u"The limit and the payment will become the balance, £9,000.00."_qs);
    field(u"dateField"_qs).setText(u"soon"_qs);
    EXPECT_EQ(line(), u"This is not a date."_qs);

    // As it is saved, a new one stays, and so does one in which nothing is changed.
    openForNew();
    field(u"dateField"_qs).setText(u"10/05/2013"_qs);
    balance.setText(u"9000"_qs);
    EXPECT_NE(line(), limitRaised);
    auto& may = store.insertStatement(&card, utc(2013, 5, 15), {"9000", "1", "500", 0.0});
    store.save();
    openFor(may);
    EXPECT_EQ(line(), u"18 m ⟶ 15/11/2014"_qs);
    payment.setText(u"501"_qs);
    EXPECT_EQ(line(), limitRaised);
}

TEST_F(CVStatementPopoverControllerTest, TodayIsConfirmableAtAnyTimeOfDay)
{
    july.setDate(utc(2013, 7, 19, 23));
    openFor(july);
    editor.dateField().setMaxDate(Clock::now());
    clock.advance(1);
    for (const auto& [name, enter] :
         std::initializer_list<std::pair<const char*, void (*)(OADatePickerTextField&)>>{
             {"stepped",
              [](OADatePickerTextField& dateField) {
                  QTest::keyClick(&dateField, Qt::Key_Up);
              }},
             {"picked", [](OADatePickerTextField& dateField) {
                  dateField.pickDate(utc(2013, 7, 20, 23));
              }}}) {
        editor.dateField().enterDate(july.date());
        enter(editor.dateField());
        EXPECT_EQ(editor.date(), utc(2013, 7, 20, 12)) << name;
        EXPECT_TRUE(okButton().isEnabled()) << name;
    }
    editor.dateField().pickDate(utc(2013, 7, 21));
    EXPECT_FALSE(okButton().isEnabled());
}

TEST_F(CVStatementPopoverControllerTest, WhatCannotBeReadRefusesToBeConfirmed)
{
    openFor(july);
    field(u"balanceField"_qs).setText(u"2000"_qs);
    field(u"limitField"_qs).setText(QString(50, u'9'));
    field(u"rateField"_qs).setText(u"a lot"_qs);
    EXPECT_TRUE(okButton().isEnabled());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(popover.isShown());
    EXPECT_FALSE(editor.isDirty());
    EXPECT_TRUE(field(u"limitField"_qs).hasFocus());
    EXPECT_EQ(line(), u"A number has at most 38 digits."_qs);
    EXPECT_EQ(field(u"rateField"_qs).text(), u"a lot"_qs);
    EXPECT_EQ(editor.statement()->limit(), july.limit());

    // Another statement takes the place of this one in the open form.
    openFor(june);
    EXPECT_EQ(field(u"limitField"_qs).text(), u"5,000.00"_qs);
    EXPECT_EQ(field(u"rateField"_qs).text(), u"19.9%"_qs);
    EXPECT_EQ(line(), u"5 m ⟶ 15/11/2013"_qs);
    editor.addOrUpdateStatement();
    EXPECT_TRUE(editor.isDirty());
    EXPECT_EQ(editor.statement()->balance()->toPlainText(), "800.50");
}

TEST_F(CVStatementPopoverControllerTest, WhatWasTypedCanBeBroughtBackIntoAnotherForm)
{
    openForNew();
    EXPECT_TRUE(editor.typedTexts().empty());
    field(u"balanceField"_qs).setText(u"12"_qs);
    field(u"limitField"_qs).setText(u"7000"_qs);
    field(u"limitField"_qs).setText(u"6,000.00"_qs);
    field(u"paymentField"_qs).setText(u"a lot"_qs);
    const CVPopoverController::TypedTexts typed{{u"balanceField"_qs, u"12"_qs},
                                                {u"paymentField"_qs, u"a lot"_qs}};
    EXPECT_EQ(editor.typedTexts(), typed) << "not what was typed back";

    openFor(june);
    EXPECT_TRUE(editor.typedTexts().empty());
    clock.advance(3600);
    openForNew();
    const auto date = editor.date();
    editor.restoreTypedTexts(typed);
    EXPECT_EQ(editor.typedTexts(), typed);
    EXPECT_EQ(editor.date(), date) << "with its time of day";
    EXPECT_EQ(editor.statement()->balance(), NSDecimalNumber(12));
    EXPECT_EQ(editor.statement()->payment(), july.payment());
    EXPECT_EQ(line(), u"This is not a number."_qs);

    editor.restoreTypedTexts({{u"dateField"_qs, u"soon"_qs}, {u"nameField"_qs, u"no such"_qs}});
    EXPECT_EQ(field(u"dateField"_qs).text(), u"soon"_qs);
    EXPECT_TRUE(editor.typedTexts().contains(u"dateField"_qs));
    EXPECT_FALSE(okButton().isEnabled());
}

TEST_F(CVStatementPopoverControllerTest, NothingIsConfirmedOnceTheTargetIsGone)
{
    auto& undoManager = store.context().undoManager();
    openFor(july);
    ASSERT_TRUE(okButton().isEnabled());
    store.context().deleteObject(card);
    store.context().processPendingChanges();
    EXPECT_FALSE(okButton().isEnabled());
    undoManager.undo();
    EXPECT_TRUE(okButton().isEnabled());
    undoManager.redo();
    editor.addOrUpdateStatement();
    EXPECT_FALSE(popover.isShown());
    EXPECT_FALSE(editor.isDirty());
}
