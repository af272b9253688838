#include "app/Translation.h"

#include "app/AboutBox.h"
#include "editors/AmountField.h"
#include "editors/CVCardPopoverController.h"
#include "editors/CVStatementPopoverController.h"
#include "editors/FormLine.h"
#include "editors/TypedTextGuard.h"
#include "foundation/Clock.h"
#include "foundation/RegionalSettings.h"
#include "foundation/RelativeDateFormatter.h"
#include "mainwindow/MainWindowController.h"
#include "mainwindow/NoticeText.h"
#include "mainwindow/editing/EditorTarget.h"
#include "store/NSError.h"
#include "tests/support/CardStore.h"
#include "tests/support/EditorPopover.h"
#include "tests/support/Utc.h"
#include "tests/support/WindowHost.h"
#include "widgets/NoticeBar.h"
#include "widgets/SplitView.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

/// In the English of the source, and in each language that the program speaks.
class TranslationTest : public testing::TestWithParam<const char*>
{
protected:
    TranslationTest()
    {
        auto& card = store.insertCard(QStringLiteral("Aurora"));
        store.insertStatement(&card, utc(2026, 11, 14), {"412.07", "5000", "15", 0.189});
        store.save();
    }

    Translation translation{QString::fromLatin1(GetParam())};
    CardStore store;
};

void expectLetters(const QMenu& menu)
{
    std::set<QChar> letters;
    for (const auto* const action : menu.actions()) {
        if (!action->isSeparator()) {
            const auto text = action->text();
            const auto letter = text.indexOf(u'&') + 1;
            EXPECT_TRUE(letter > 0 && letters.insert(text.at(letter).toLower()).second)
                << text.toStdString();
        }
    }
}

/// Every text of a label or a button that is seen has its room.
void expectRoomForTexts(const QWidget& window)
{
    for (const auto* const label : window.findChildren<QLabel*>()) {
        if (!label->isVisible()) {
            continue;
        }
        const auto& metrics = label->fontMetrics();
        const int needed = label->wordWrap() ? label->heightForWidth(label->width())
                                             : metrics.horizontalAdvance(label->text());
        EXPECT_LE(needed, label->wordWrap() ? label->height() : label->contentsRect().width())
            << label->text().toStdString();
    }
    for (const auto* const button : window.findChildren<QAbstractButton*>()) {
        EXPECT_LE(button->sizeHint().width(), button->width()) << button->text().toStdString();
    }
}

/// What the foot of the window has to say at times, with the button beside it.
void expectRoomForNotices(NoticeBar& bar, CVCard& card)
{
    using Kind = EditorTarget::Kind;
    auto& statement = *card.lastStatement();
    std::vector<std::pair<QString, const char*>> notices = {
        {NoticeText::deleted(card), "Undo"},
        {NoticeText::deleted(statement), "Undo"},
        {NoticeText::dropped({Kind::NewCard, nullptr}), "Continue"},
        {NoticeText::dropped({Kind::Card, &card}), "Continue"},
        {NoticeText::dropped({Kind::NewStatement, &card}), "Continue"},
        {NoticeText::dropped({Kind::Statement, &statement}), "Continue"},
        {NoticeText::unconfirmed({Kind::Statement, &statement}), "Quit"},
        {NoticeText::gone({Kind::Card, &card}), "Redo"},
        {NoticeText::gone({Kind::Statement, &statement}), "Redo"},
        {NoticeText::written(card, true), "Undo"}};
    for (const auto* const cause :
         {"a record is not valid", "there is no data file",
          "the data file is in use by another program", "the data file is damaged",
          "the file is not a Corvane data file", "the disk is full",
          "the data file cannot be written", "the data file could not be opened",
          "the data file could not be written"}) {
        const NSError error(u"Domain"_qs, 1, {}, {}, ErrorText(cause));
        notices.emplace_back(NoticeText::unsaved(error), "Save Again");
    }
    for (const auto& [text, title] : notices) {
        bar.setDismissible(title != std::string("Save Again"));
        bar.showNotice(text, QCoreApplication::translate("MainWindowController", title));
        EXPECT_EQ(bar.toolTip(), QString()) << "shortened";
    }
    bar.clearNotice();
}

/// What the line of an editor has to say at times, with the values that it names.
struct Saying
{
    const char* context;
    const char* source;
    QStringList values;
};

void expectRoomInLine(const QWidget& editor, const std::vector<Saying>& sayings, bool isTranslated)
{
    auto& line = *editor.findChild<FormLine*>();
    for (const auto& [context, source, values] : sayings) {
        auto text = QCoreApplication::translate(context, source);
        EXPECT_EQ(text != QString::fromUtf8(source), isTranslated) << source;
        for (const auto& value : values) {
            text = text.arg(value);
        }
        line.setText(text);
        EXPECT_FALSE(line.shownText().contains(u'…')) << line.shownText().toStdString();
    }
    if (auto* const field = editor.findChild<AmountField*>()) {
        const ScopedRegionalSettings germany({"de_DE", "de_DE", "Europe/Berlin"});
        field->setCurrency(u"EUR"_qs);
        field->setText(u"123,000"_qs);
        field->guard().commitEditing();
        EXPECT_EQ(line.text(), field->invalidReason());
        EXPECT_TRUE(line.shownText().contains(u"123.000,00"_qs)) << line.shownText().toStdString();
    }
}

const auto* const statementEditorName = "CVStatementPopoverController";
const auto amount = QStringLiteral("£123,456.78");
const std::vector<Saying> sayingsOfCards = {
    {"CurrencyChooser", "There is no such currency.", {}},
};
const std::vector<Saying> sayingsOfStatements = {
    {"NumberField", "A number has at most %1 digits.", {u"38"_qs}},
    {"NumberField", "This is not a number.", {}},
    {"AmountField", "Amounts here are in %1, not in %2.", {u"GBP"_qs, u"EUR"_qs}},
    {"AmountField", "This can mean %1 or %2.", {u"1’234.000"_qs, u"1.234"_qs}},
    {statementEditorName, "This was deleted meanwhile.", {}},
    {statementEditorName, "This date is still to come.", {}},
    {statementEditorName,
     "%1 has a statement already, of %2.",
     {u"September 2026"_qs, u"15/09/2026"_qs}},
    {statementEditorName, "The limit and the payment will become the balance, %1.", {amount}},
    {statementEditorName, "The limit will be raised to the balance, %1.", {amount}},
    {statementEditorName, "A payment of nothing will become the whole balance, %1.", {amount}},
};

} // namespace

TEST_P(TranslationTest, NoTwoItemsOfAMenuHaveTheSameLetter)
{
    WindowHost host(store.context());
    MainWindowController controller(host);
    auto& menuBar = *controller.window().menuBar();
    QMenu titles;
    titles.addActions(menuBar.actions());
    expectLetters(titles);
    for (const auto* const menu : menuBar.findChildren<QMenu*>()) {
        expectLetters(*menu);
    }
}

TEST_P(TranslationTest, NoTextIsCutOffInTheSmallestWindow)
{
    WindowHost host(store.context());
    MainWindowController controller(host);
    auto& window = controller.window();
    window.resize(window.minimumSize());
    controller.showWindow();
    QCoreApplication::processEvents();
    expectRoomForTexts(window);
    EXPECT_LE(window.menuBar()->sizeHint().width(), window.width());
    expectRoomForNotices(*window.findChild<NoticeBar*>(), store.cardAt(0));
    const bool isMirrored = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    EXPECT_EQ(isMirrored, GetParam() == std::string("ar"));
    const auto& panes = *window.findChild<SplitView*>();
    EXPECT_EQ(panes.widget(isMirrored ? 1 : 0)->x(), 0);
    EXPECT_EQ(panes.widget(isMirrored ? 0 : 1)->geometry().right(), panes.rect().right());

    store.context().deleteObject(store.cardAt(0));
    store.save();
    window.resize(900, 420);
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.findChild<QLabel*>(QStringLiteral("invitationText"))->isVisible());
    expectRoomForTexts(window);
}

TEST_P(TranslationTest, NoTextIsCutOffInTheEditorsAndTheAboutBox)
{
    CVCardPopoverController cardEditor;
    CVStatementPopoverController statementEditor;
    for (const auto& [editor, sayings] :
         std::initializer_list<std::pair<CVPopoverController*, const std::vector<Saying>*>>{
             {&cardEditor, &sayingsOfCards}, {&statementEditor, &sayingsOfStatements}}) {
        EditorPopover popover(*editor);
        popover.show();
        QCoreApplication::processEvents();
        expectRoomForTexts(editor->view());
        expectRoomInLine(editor->view(), *sayings, GetParam() != std::string("en"));
    }
    AboutBox about(store.path(), nullptr);
    about.show();
    QCoreApplication::processEvents();
    expectRoomForTexts(about);
}

TEST_P(TranslationTest, DatesAreReadInItsWords)
{
    const FixedClock clock(utc(2026, 11, 18, 12));
    const std::map<std::string, std::vector<std::pair<const char*, int>>> daysBefore = {
        {"en", {{"yesterday", 1}, {"2 weeks ago", 14}}},
        {"de",
         {{"Gestern", 1},
          {"vor 2 Wochen", 14},
          {"vor einem Monat", 31},
          {"-3T", 3},
          {"letzte Woche", 7}}},
        {"fr",
         {{"hier", 1}, {"aujourd’hui", 0}, {"il y a 2 semaines", 14}, {"la semaine dernière", 7}}},
        {"es", {{"ayer", 1}, {"manana", -1}, {"hace 3 días", 3}, {"el mes pasado", 31}}},
        {"zh_CN", {{"昨天", 1}, {"3天前", 3}, {"上周", 7}, {"1 个月前", 31}}},
        {"ar", {{"أمس", 1}, {"امس", 1}, {"قبل ٣ أيام", 3}, {"الشهر الماضي", 31}}},
    };
    for (const auto& [text, days] : daysBefore.at(GetParam())) {
        const auto date = RelativeDateFormatter().dateFromString(QString::fromUtf8(text));
        ASSERT_TRUE(date) << text;
        EXPECT_EQ(utc(2026, 11, 18) - *date, days * 86400.0) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationTest,
                         testing::Values("en", "ar", "de", "es", "fr", "zh_CN"));

TEST(TranslationsTest, ThereIsOneForEachLanguageAndNoneForAnother)
{
    EXPECT_EQ(Translation::languages().join(u' '), u"ar de es fr zh_CN"_qs);
    const Translation none(QStringLiteral("xx"));
    EXPECT_EQ(QCoreApplication::translate("CVCardPopover", "Cancel"), u"Cancel"_qs);
    const Translation german(QStringLiteral("de"));
    EXPECT_EQ(QCoreApplication::translate("CVCardPopover", "Cancel"), u"Abbrechen"_qs);
    const NSError error(u"Domain"_qs, 1, ErrorText("The data file “%1” is damaged.", u"a %1"_qs));
    EXPECT_EQ(error.localizedDescription(), u"Die Datendatei „a %1“ ist beschädigt."_qs);
    EXPECT_STREQ(error.what(), "The data file “a %1” is damaged. (Domain, 1)") << "for the log";
}
