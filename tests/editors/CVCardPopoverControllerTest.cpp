#include "editors/CVCardPopoverController.h"

#include "editors/CurrencyChooser.h"
#include "editors/VRClone.h"
#include "foundation/Currency.h"
#include "foundation/RegionalSettings.h"
#include "tests/support/CardStore.h"
#include "tests/support/EditorPopover.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// An editor that is opened for a saved card, beside the store's own context.
class CVCardPopoverControllerTest : public testing::Test
{
protected:
    CVCardPopoverControllerTest()
    {
        store.save();
        editor.setContext(&scratch);
    }

    void openFor(CVCard& original)
    {
        editor.setOriginalCard(&original);
        editor.setCard(&static_cast<CVCard&>(VRClone::vrShallowCloneInContext(original, scratch)));
        popover.show();
    }

    StyledTextField& field(const QString& name)
    {
        return *editor.view().findChild<StyledTextField*>(name);
    }
    QPushButton& okButton() { return *editor.view().findChild<QPushButton*>(u"okButton"_qs); }

    CardStore store;
    CVCard& card = store.insertCard(u"Everyday"_qs);
    NSManagedObjectContext scratch{store.coordinator()};
    CVCardPopoverController editor;
    EditorPopover popover{editor};
};

} // namespace

TEST_F(CVCardPopoverControllerTest, ANewCardHasTheCurrencyOfTheLocaleIfThereIsOne)
{
    EXPECT_EQ(editor.currencyList(), Currency::isoCodes());
    for (const auto& [locale, ccy] : {std::pair("de_DE", u"EUR"_qs), std::pair("en_GB", u"GBP"_qs),
                                      std::pair("eo", u""_qs), std::pair("en_AQ", u""_qs)}) {
        const ScopedRegionalSettings regional({locale, locale, "Europe/Berlin"});
        auto& newCard = editor.createNewCard();
        EXPECT_EQ(editor.card(), &newCard);
        EXPECT_EQ(newCard.ccy(), ccy) << locale;
        EXPECT_EQ(&newCard.managedObjectContext(), &scratch);
    }
    editor.setContext(nullptr);
    EXPECT_THROW(editor.createNewCard(), std::logic_error);
}

TEST_F(CVCardPopoverControllerTest, TheConfirmButtonSaysWhatItWillDo)
{
    EXPECT_EQ(okButton().text(), u"Add"_qs);
    editor.setOriginalCard(&card);
    EXPECT_EQ(okButton().text(), u"Update"_qs);
    editor.setOriginalCard(nullptr);
    EXPECT_EQ(okButton().text(), u"Add"_qs);
}

TEST_F(CVCardPopoverControllerTest, WhatIsTypedIsInTheScratchCardAtOnceAndOnlyThere)
{
    openFor(card);
    EXPECT_EQ(field(u"nameField"_qs).text(), u"Everyday"_qs);
    EXPECT_TRUE(field(u"nameField"_qs).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    QTest::keyClicks(QApplication::focusWidget(), u"!"_qs);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), u"4410"_qs);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    field(u"currencyChooser"_qs).setText(u"eur"_qs);
    EXPECT_EQ(editor.card()->name(), u"Everyday!"_qs);
    EXPECT_EQ(editor.card()->account(), u"4410"_qs);
    EXPECT_EQ(editor.card()->ccy(), u"EUR"_qs);
    EXPECT_FALSE(store.context().hasChanges());

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(popover.isShown());
    EXPECT_TRUE(editor.isDirty());

    openFor(card);
    EXPECT_EQ(field(u"nameField"_qs).text(), u"Everyday"_qs);
    EXPECT_EQ(field(u"currencyChooser"_qs).text(), u"GBP – British Pound"_qs);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(popover.isShown());
    EXPECT_FALSE(editor.isDirty());
}

TEST_F(CVCardPopoverControllerTest, ANameHasNoLineBreaks)
{
    openFor(card);
    QGuiApplication::clipboard()->setText(u"Every\r\nday\n"_qs);
    field(u"nameField"_qs).clear();
    QTest::keyClicks(QApplication::focusWidget(), u"!"_qs);
    field(u"nameField"_qs).home(false);
    field(u"nameField"_qs).paste();
    EXPECT_EQ(editor.card()->name(), u"Every day !"_qs);
    EXPECT_EQ(field(u"nameField"_qs).text(), u"Every day !"_qs);
    EXPECT_EQ(field(u"nameField"_qs).cursorPosition(), 10);

    // One that a file holds is shown, and stays while nobody types.
    card.setAccount(u"1\n2"_qs);
    openFor(card);
    EXPECT_EQ(editor.card()->account(), u"1\n2"_qs);
}

TEST_F(CVCardPopoverControllerTest, ConfirmingLeavesNoStepToUndoInTheScratchContext)
{
    openFor(card);
    scratch.processPendingChanges();
    scratch.undoManager().removeAllActions();
    for (const auto& name : {u"nameField"_qs, u"accountField"_qs, u"currencyChooser"_qs}) {
        field(name).clear();
    }
    editor.addOrUpdateCard();
    EXPECT_TRUE(editor.isDirty());
    EXPECT_FALSE(scratch.undoManager().canUndo());
    EXPECT_TRUE(scratch.undoManager().isUndoRegistrationEnabled());
    EXPECT_EQ(editor.card()->ccy(), QString());
}

TEST_F(CVCardPopoverControllerTest, NothingIsConfirmedThatCannotBeReadOrIsGone)
{
    openFor(card);
    field(u"currencyChooser"_qs).setText(u"shells"_qs);
    okButton().click();
    EXPECT_TRUE(popover.isShown());
    EXPECT_TRUE(field(u"currencyChooser"_qs).hasFocus());
    EXPECT_EQ(editor.view().findChild<QLabel*>(u"line"_qs)->text(),
              u"There is no such currency."_qs);
    EXPECT_EQ(editor.card()->ccy(), u"GBP"_qs);

    const auto typed = editor.typedTexts();
    editor.createNewCard();
    EXPECT_TRUE(editor.typedTexts().empty());
    openFor(card);
    editor.restoreTypedTexts(typed);
    EXPECT_EQ(field(u"currencyChooser"_qs).invalidReason(), u"There is no such currency."_qs);
    EXPECT_EQ(editor.typedTexts(), typed);

    field(u"currencyChooser"_qs).setText(u"jpy"_qs);
    EXPECT_EQ(editor.view().findChild<QLabel*>(u"line"_qs)->text(), QString());
    store.context().deleteObject(card);
    okButton().click();
    EXPECT_FALSE(popover.isShown());
    EXPECT_FALSE(editor.isDirty());
}
