// A person who does anything at any time, and a plain model of what must come of it.
//
// CORVANE_STEPS asks for more steps than usual, CORVANE_SEED for a walk that was reported.

#include "app/AlertPresenter.h"
#include "app/CVApplication.h"
#include "app/Corvane_AppDelegate.h"
#include "editors/AmountField.h"
#include "editors/CVCardPopoverController.h"
#include "editors/CVStatementPopoverController.h"
#include "editors/CurrencyChooser.h"
#include "editors/OADatePickerTextField.h"
#include "editors/RateField.h"
#include "editors/TypedTextGuard.h"
#include "foundation/Clock.h"
#include "mainwindow/CVCardTableRowView.h"
#include "mainwindow/CVCardTableView.h"
#include "mainwindow/MainWindowController.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSError.h"
#include "store/NSManagedObjectContext.h"
#include "tests/support/PlainModel.h"
#include "tests/support/Utc.h"
#include "timeline/CVTimelineTableView.h"
#include "widgets/DismissButton.h"
#include "widgets/FormButton.h"
#include "widgets/NSPopover.h"
#include "widgets/NoticeBar.h"
#include "widgets/PopoverAnchor.h"

#include <QAction>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <random>
#include <sstream>

namespace {

enum class Act
{
    AddCard,
    AddStatement,
    PressAdd,
    OpenEditor,
    DoubleClick,
    TypeInEditor,
    Confirm,
    Cancel,
    Delete,
    Undo,
    Redo,
    Save,
    SelectStatement,
    SelectCard,
    PressAnyKey,
    ClickAnywhere,
    PressNotice,
    OpenMenu,
    ZoomOrScroll,
    Resize,
    Restart,
};

/// What is done, and how often of a hundred times.
constexpr struct
{
    Act act;
    const char* name;
    unsigned share;
} acts[] = {
    {Act::AddCard, "AddCard", 4},
    {Act::AddStatement, "AddStatement", 6},
    {Act::PressAdd, "PressAdd", 5},
    {Act::OpenEditor, "OpenEditor", 5},
    {Act::DoubleClick, "DoubleClick", 4},
    {Act::TypeInEditor, "TypeInEditor", 16},
    {Act::Confirm, "Confirm", 12},
    {Act::Cancel, "Cancel", 2},
    {Act::Delete, "Delete", 3},
    {Act::Undo, "Undo", 9},
    {Act::Redo, "Redo", 6},
    {Act::Save, "Save", 2},
    {Act::SelectStatement, "SelectStatement", 7},
    {Act::SelectCard, "SelectCard", 4},
    {Act::PressAnyKey, "PressAnyKey", 7},
    {Act::ClickAnywhere, "ClickAnywhere", 4},
    {Act::PressNotice, "PressNotice", 4},
    {Act::OpenMenu, "OpenMenu", 1},
    {Act::ZoomOrScroll, "ZoomOrScroll", 3},
    {Act::Resize, "Resize", 1},
    {Act::Restart, "Restart", 1},
};

/// One step of a walk: all that it does follows from these two and from what was done before, so
/// that a walk without some of its steps is a walk too.
struct Step
{
    Act act;
    unsigned chance;
};
using Steps = std::vector<Step>;

Steps randomSteps(unsigned seed, std::size_t count)
{
    std::mt19937 random(seed);
    std::vector<unsigned> shares;
    std::ranges::transform(acts, std::back_inserter(shares),
                           [](const auto& act) { return act.share; });
    std::discrete_distribution<std::size_t> choice(shares.begin(), shares.end());
    Steps steps;
    for (std::size_t i = 0; i < count; ++i) {
        steps.push_back({acts[choice(random)].act, static_cast<unsigned>(random())});
    }
    return steps;
}

std::string described(const Steps& steps)
{
    std::ostringstream text;
    for (const auto& step : steps) {
        text << '{' << "Act::" << acts[static_cast<std::size_t>(step.act)].name << ", "
             << step.chance << "u}, ";
    }
    return text.str();
}

class NoAlerts : public AlertPresenter
{
public:
    void presentError(const NSError& error) override { throw error; }
    bool presentError(const NSError& error, const Recovery& /*recovery*/) override { throw error; }
    int runModalAlert(const Alert& /*alert*/) override { throw std::runtime_error("an alert"); }
};

/// The program in a folder of its own, with the model beside it. Every failure is thrown.
class Walk
{
public:
    Walk() { start(); }

    void take(const Step& step)
    {
        m_chance.seed(step.chance);
        const Editors before = editors();
        const auto outcomes = perform(step.act, before);
        settle();
        compare(outcomes);
        checkWindow();
        if (step.act != Act::TypeInEditor && step.act != Act::Confirm &&
            step.act != Act::PressAnyKey && step.act != Act::ClickAnywhere &&
            step.act != Act::Restart && !std::exchange(m_wasTypingTakenBack, false)) {
            checkTyping(before);
        }
    }

private:
    /// What the open editors would commit.
    struct Editors
    {
        std::optional<PlainStatement> statement;
        const NSManagedObject* originalStatement = nullptr;
        /// The card whose months count. Usually the one that gets the statement.
        const NSManagedObject* cardOfMonths = nullptr;
        std::optional<PlainCard> card;
        const NSManagedObject* originalCard = nullptr;
        CVPopoverController::TypedTexts typedForStatement;
        CVPopoverController::TypedTexts typedForCard;
        QString notice;
        PlainRecords records;
    };
    /// What may have become of the records: a change of this name that makes them these. Where a
    /// record is new, it is not known yet under what name it stands: it is null.
    struct Outcome
    {
        PlainRecords records;
        QString name;
    };
    using Outcomes = std::vector<Outcome>;

    static void require(bool holds, const std::string& what)
    {
        if (!holds) {
            throw std::runtime_error(what);
        }
    }

    void start()
    {
        m_delegate = std::make_unique<Corvane_AppDelegate>(
            m_alerts, UserDefaults::inFile(m_home.filePath(QStringLiteral("defaults"))),
            m_home.filePath(QStringLiteral("Corvane")));
        application().setDelegate(m_delegate.get());
        m_delegate->applicationDidFinishLaunching();
        application().connectActions(window());
        window().resize(window().minimumSize());
        window().activateWindow();
        require(QTest::qWaitForWindowActive(&window()), "the window is not active");
        m_model = PlainModel(PlainRecords::of(context()));
    }
    void restart()
    {
        const auto before = m_model.now.lines();
        require(m_delegate->applicationShouldTerminate() ==
                    Corvane_AppDelegate::TerminateReply::Now,
                "the program does not end");
        const auto open = editors();
        const bool isTyped = !open.typedForStatement.empty() || !open.typedForCard.empty();
        require(window().close() || isTyped, "the window does not close");
        m_delegate.reset();
        start();
        require(m_model.now.lines() == before, "a restart changed the records");
    }

    static CVApplication& application() { return static_cast<CVApplication&>(*qApp); }
    MainWindowController& controller() { return *m_delegate->mainWindowController(); }
    CVMainWindow& window() { return controller().window(); }
    NSManagedObjectContext& context() { return *m_delegate->managedObjectContext(); }
    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    unsigned below(unsigned count) { return static_cast<unsigned>(m_chance() % count); }
    template <std::size_t count, typename Value>
    const Value& any(const Value (&values)[count])
    {
        return values[below(count)];
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        auto* target = QApplication::activePopupWidget();
        if (!target) {
            target = QApplication::focusWidget();
        }
        QTest::keyClick(target ? target : &window(), key, modifiers);
    }
    void command(const char* name) { window().findChild<QAction*>(QLatin1String(name))->trigger(); }

    Editors editors()
    {
        Editors result;
        result.records = m_model.now;
        result.notice = find<NoticeBar>("noticeBar").text();
        const auto& statementEditor = controller().statementPopoverController();
        if (controller().statementPopover() && statementEditor.statement()) {
            result.statement = PlainStatement::of(*statementEditor.statement());
            result.statement->date = statementEditor.date();
            result.originalStatement = statementEditor.originalStatement();
            result.typedForStatement = statementEditor.typedTexts();
            result.cardOfMonths = statementEditor.card();
            result.statement->card = statementEditor.originalStatement()
                                         ? statementEditor.originalStatement()->card()
                                         : statementEditor.card();
        }
        const auto& cardEditor = controller().cardPopoverController();
        if (controller().cardPopover() && cardEditor.card()) {
            result.card = PlainCard::of(*cardEditor.card());
            result.originalCard = cardEditor.originalCard();
            result.typedForCard = cardEditor.typedTexts();
        }
        return result;
    }

    Outcome confirmed(const PlainStatement& statement, const NSManagedObject* original) const
    {
        auto records = m_model.now;
        records.statements[original] = statement;
        return {records, QStringLiteral("%1 Statement")
                             .arg(original ? QStringLiteral("Edit") : QStringLiteral("Add"))};
    }
    Outcome confirmed(const PlainCard& card, const NSManagedObject* original) const
    {
        auto records = m_model.now;
        records.cards[original] = card;
        return {records, QStringLiteral("%1 Card").arg(original ? QStringLiteral("Edit")
                                                                : QStringLiteral("Add"))};
    }
    Outcome deleted(const NSManagedObject* statement, const NSManagedObject* card) const
    {
        auto records = m_model.now;
        if (statement) {
            records.statements.erase(statement);
            return {records, QStringLiteral("Delete Statement")};
        }
        records.cards.erase(card);
        std::erase_if(records.statements,
                      [card](const auto& entry) { return entry.second.card == card; });
        return {records, QStringLiteral("Delete Card")};
    }
    /// All that one key or click may do to the records.
    Outcomes anything(const Editors& before)
    {
        Outcomes result = {{m_model.now, QString()},
                           deleted(controller().selectedStatement(), controller().selectedCard())};
        if (before.statement) {
            result.push_back(confirmed(*before.statement, before.originalStatement));
        }
        if (before.card) {
            result.push_back(confirmed(*before.card, before.originalCard));
        }
        return result;
    }

    /// Does it, and answers what may have become of the records.
    Outcomes perform(Act act, const Editors& before)
    {
        const Outcome nothing{m_model.now, QString()};
        switch (act) {
        case Act::AddCard:
            command("addCard");
            return {nothing};
        case Act::AddStatement:
            command("addStatement");
            return {nothing};
        case Act::PressAdd:
            pressAdd();
            return {nothing};
        case Act::DoubleClick:
            doubleClick();
            return {{m_model.now, QString()}};
        case Act::OpenEditor:
            command("getSelectedCardInfo");
            return {nothing};
        case Act::TypeInEditor:
            typeInEditor();
            return {nothing};
        case Act::Confirm:
            return confirm(before);
        case Act::Cancel:
            cancel();
            return {nothing};
        case Act::Delete: {
            const auto outcome =
                deleted(controller().selectedStatement(), controller().selectedCard());
            command("delete_");
            require(!context().hasChanges(), "a deletion was not saved");
            return {outcome};
        }
        case Act::Undo:
        case Act::Redo:
            undoOrRedo(act == Act::Undo);
            return {{m_model.now, QString()}};
        case Act::Save:
            command("saveAction");
            require(!context().hasChanges(), "not saved");
            return {nothing};
        case Act::SelectStatement:
            below(2) == 0 ? controller().selectNextStatement()
                          : controller().selectPreviousStatement();
            return {nothing};
        case Act::SelectCard:
            QTest::keyClick(window().findChild<QWidget*>(QStringLiteral("cardsTableView")),
                            below(2) == 0 ? Qt::Key_Up : Qt::Key_Down);
            return {nothing};
        case Act::PressAnyKey: {
            const auto outcomes = anything(before);
            pressAnyKey();
            return outcomes;
        }
        case Act::ClickAnywhere:
            clickAnywhere();
            return {{m_model.now, QString()}};
        case Act::PressNotice:
            pressNotice();
            return {{m_model.now, QString()}};
        case Act::OpenMenu:
            openMenu();
            return {nothing};
        case Act::ZoomOrScroll:
            zoomOrScroll();
            return {nothing};
        case Act::Resize:
            window().resize(window().minimumSize() +
                            QSize(static_cast<int>(below(200)), static_cast<int>(below(200))));
            return {nothing};
        case Act::Restart:
            m_model.save();
            restart();
            return {{m_model.now, QString()}};
        }
        throw std::logic_error("no such act");
    }

    void typeInEditor()
    {
        const bool isStatement = controller().statementPopover();
        if (isStatement) {
            typeInStatementEditor();
        } else if (controller().cardPopover()) {
            auto& editor = controller().cardPopoverController();
            const bool isName = below(3) != 0;
            auto* const field = editor.view().findChild<QLineEdit*>(
                isName ? QStringLiteral("nameField") : QStringLiteral("accountField"));
            const auto text = QString::number(below(10000));
            const bool isTyped = type(*field, text);
            require(!isTyped || (isName ? editor.card()->name() : editor.card()->account()) == text,
                    "the card's editor did not take a text");
        }
    }
    void typeInStatementEditor()
    {
        auto& editor = controller().statementPopoverController();
        auto expected = PlainStatement::of(*editor.statement());
        const auto isTyped = [&editor](const char* name, const QString& text) {
            return type(*editor.view().findChild<QLineEdit*>(QLatin1String(name)), text);
        };
        static constexpr const char* amounts[] = {"0",     "12.5",  "100",
                                                  "-7.25", "800.1", "123456789012345678.99"};
        const char* const text = any(amounts);
        const auto amount = NSDecimalNumber::fromText(text);
        switch (below(6)) {
        case 0:
            expected.balance =
                isTyped("balanceField", QLatin1String(text)) ? amount : expected.balance;
            break;
        case 1:
            expected.limit = isTyped("limitField", QLatin1String(text)) ? amount : expected.limit;
            break;
        case 2:
            expected.payment =
                isTyped("paymentField", QLatin1String(text)) ? amount : expected.payment;
            break;
        case 3:
            expected.rate = isTyped("rateField", QStringLiteral("50")) ? 0.5 : expected.rate;
            break;
        case 4:
            isTyped("balanceField", QStringLiteral("about 12"));
            break;
        default: {
            const QDate date(2020 + static_cast<int>(below(8)), static_cast<int>(below(12)) + 1,
                             14);
            if (isTyped("dateField", date.toString(Qt::ISODate))) {
                require(editor.date() && dateOf(*editor.date()) == date,
                        "the statement's editor did not take a date");
            }
        }
        }
        const auto taken = PlainStatement::of(*editor.statement());
        require(taken == expected, "the statement's editor holds " + lineOf(taken) +
                                       " instead of " + lineOf(expected));
    }
    static std::string lineOf(const PlainStatement& statement)
    {
        return *PlainRecords{{}, {{nullptr, statement}}}.lines().begin();
    }
    /// False when another field keeps the focus, because what stands there cannot be read.
    static bool type(QLineEdit& field, const QString& text)
    {
        field.setFocus();
        if (!field.hasFocus()) {
            return false;
        }
        field.selectAll();
        QTest::keyClicks(&field, text);
        return true;
    }
    static QDate dateOf(Instant date)
    {
        return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(date.secondsSince1970()), Qt::UTC)
            .date();
    }

    Outcomes confirm(const Editors& before)
    {
        const Outcome nothing{m_model.now, QString()};
        if (before.statement) {
            auto& editor = controller().statementPopoverController();
            auto& button = *editor.view().findChild<QPushButton*>(QStringLiteral("okButton"));
            require(button.isEnabled() == isDateFree(before).value_or(button.isEnabled()),
                    "the confirm button is wrong");
            const bool isTaken = button.isEnabled() && isReadable() &&
                                 m_model.now.cards.contains(before.statement->card);
            button.click();
            require(isTaken == (!controller().statementPopover() &&
                                m_model.now.cards.contains(before.statement->card)),
                    "a confirmed editor stays open, or one that must stay closed");
            return {isTaken ? confirmed(*before.statement, before.originalStatement) : nothing};
        }
        if (before.card) {
            auto& editor = controller().cardPopoverController();
            const bool isTaken =
                !before.originalCard || m_model.now.cards.contains(before.originalCard);
            const bool isLive = &editor.card()->managedObjectContext() == &context();
            // A currency that was typed in part is completed now.
            const bool isReadable =
                editor.view().findChild<CurrencyChooser*>()->guard().commitEditing();
            const auto card = PlainCard::of(*editor.card());
            editor.view().findChild<QPushButton*>(QStringLiteral("okButton"))->click();
            require(bool(controller().cardPopover()) != isReadable,
                    "a confirmed editor stays open, or one that must stay closed");
            return {isReadable && isTaken && !isLive ? confirmed(card, before.originalCard)
                                                     : nothing};
        }
        return {nothing};
    }
    bool isOwnerGone(const Editors& before) const
    {
        return !m_model.now.cards.contains(before.cardOfMonths) ||
               (before.originalStatement &&
                !m_model.now.statements.contains(before.originalStatement));
    }
    /// Whether the date is none of the future, and its month has no statement, or the edited one as
    /// its first. Absent when several are the first of their month.
    std::optional<bool> isDateFree(const Editors& before) const
    {
        const auto& date = before.statement->date;
        if (!date || *date >= Clock::now() || isOwnerGone(before)) {
            return false;
        }
        const auto month = QStringLiteral("yyyy-MM");
        std::multimap<double, const NSManagedObject*> sameMonth;
        for (const auto& [record, statement] : m_model.now.statements) {
            if (statement.card == before.cardOfMonths && statement.date &&
                dateOf(*statement.date).toString(month) == dateOf(*date).toString(month)) {
                sameMonth.emplace(statement.date->secondsSince1970(), record);
            }
        }
        if (sameMonth.empty()) {
            return true;
        }
        return sameMonth.count(sameMonth.begin()->first) > 1
                   ? std::nullopt
                   : std::optional(sameMonth.begin()->second == before.originalStatement);
    }
    bool isReadable()
    {
        const auto fields =
            controller().statementPopoverController().view().findChildren<NumberField*>();
        return std::ranges::all_of(fields, [](const auto* field) { return field->isReadable(); });
    }

    void cancel()
    {
        if (controller().statementPopover()) {
            controller().statementPopoverController().cancel();
            require(!controller().statementPopover(), "a cancelled editor is open");
        } else if (controller().cardPopover()) {
            controller().cardPopoverController().cancel();
            require(!controller().cardPopover(), "a cancelled editor is open");
        }
    }

    void undoOrRedo(bool isUndo)
    {
        const bool canDo = isUndo ? m_model.canUndo() : m_model.canRedo();
        const auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        if (QApplication::activePopupWidget() || below(2) == 0) {
            command(isUndo ? "undo" : "redo");
        } else {
            const bool isFields =
                field && (field->isUndoAvailable() || (!isUndo && field->isRedoAvailable()));
            press(Qt::Key_Z,
                  isUndo ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
            if (isFields) {
                m_wasTypingTakenBack = true;
                return;
            }
        }
        isUndo ? m_model.undo() : m_model.redo();
        require(!canDo || !context().hasChanges(), "undo was not saved");
    }

    void pressAnyKey()
    {
        static constexpr struct
        {
            Qt::Key key;
            Qt::KeyboardModifiers modifiers = Qt::NoModifier;
        } keys[] = {{Qt::Key_Escape},
                    {Qt::Key_Tab},
                    {Qt::Key_Backtab, Qt::ShiftModifier},
                    {Qt::Key_Return},
                    {Qt::Key_Enter, Qt::KeypadModifier},
                    {Qt::Key_Left},
                    {Qt::Key_Right},
                    {Qt::Key_Up},
                    {Qt::Key_Down},
                    {Qt::Key_Down, Qt::AltModifier},
                    {Qt::Key_Home},
                    {Qt::Key_End},
                    {Qt::Key_PageUp},
                    {Qt::Key_PageDown},
                    {Qt::Key_Space},
                    {Qt::Key_Backspace},
                    {Qt::Key_Delete},
                    {Qt::Key_7},
                    {Qt::Key_A},
                    {Qt::Key_A, Qt::ControlModifier},
                    {Qt::Key_N, Qt::ControlModifier},
                    {Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier},
                    {Qt::Key_I, Qt::ControlModifier},
                    {Qt::Key_S, Qt::ControlModifier},
                    {Qt::Key_Plus, Qt::ControlModifier},
                    {Qt::Key_0, Qt::ControlModifier},
                    {Qt::Key_F9}};
        const auto& key = any(keys);
        const bool isPress =
            key.key == Qt::Key_Space || key.key == Qt::Key_Return || key.key == Qt::Key_Enter;
        if (!isPress || !isNotices(QApplication::focusWidget())) {
            press(key.key, key.modifiers);
        }
    }
    /// What its buttons do is of pressNotice() alone.
    bool isNotices(const QWidget* widget)
    {
        return find<NoticeBar>("noticeBar").isAncestorOf(widget);
    }

    void clickAnywhere()
    {
        const int top = window().menuBar()->height();
        const auto any = [this](int length) {
            return static_cast<int>(below(static_cast<unsigned>(length)));
        };
        const QPoint point(any(window().width()), top + any(window().height() - top));
        const auto clicks = below(3) == 0 ? 2U : 1U;
        if (!isNotices(window().childAt(point))) {
            click(point, clicks);
        }
    }
    /// What a press did is settled before the release, as it is for a person.
    void click(QPoint point, unsigned clicks)
    {
        auto* const handle = window().windowHandle();
        for (; clicks > 0; --clicks) {
            const auto outcomes = anything(editors());
            QTest::mousePress(handle, Qt::LeftButton, {}, point);
            settle();
            compare(outcomes);
            const auto outcomesOfRelease = anything(editors());
            QTest::mouseRelease(handle, Qt::LeftButton, {}, point);
            settle();
            compare(outcomesOfRelease);
        }
    }

    template <typename Widget>
    Widget& find(const char* name)
    {
        return *window().findChild<Widget*>(QLatin1String(name));
    }

    /// The "+" of a row in view, once, or two of them within one event.
    void pressAdd()
    {
        auto& list = find<CVCardTableView>("cardsTableView");
        for (auto presses = below(4) == 0 ? 2U : 1U; presses > 0; --presses) {
            auto* const row = list.rowView(static_cast<int>(below(4)));
            if (row && row->cellView().addStatementButton().isEnabled()) {
                row->cellView().addStatementButton().click();
            }
        }
    }
    /// A row of the list, or a dot, as far as it is in view and nothing lies over it.
    void doubleClick()
    {
        auto& list = find<CVCardTableView>("cardsTableView");
        auto& timeline = find<CVTimelineTableView>("timelineTableView");
        RowTableView* table = &list;
        auto place = list.rectOfRow(static_cast<int>(below(4))).topLeft() + QPoint(20, 20);
        if (below(2) == 0 && !m_model.now.statements.empty()) {
            const auto chosen =
                std::next(m_model.now.statements.begin(),
                          below(static_cast<unsigned>(m_model.now.statements.size())));
            const auto& statement = static_cast<const CVStatement&>(*chosen->first);
            const auto rect = timeline.rowForCard(statement.card())
                                  ? timeline.rectForStatement(statement)
                                  : std::nullopt;
            if (!rect) {
                return;
            }
            table = &timeline;
            place = rect->center().toPoint();
        }
        if (table->visibleRect().contains(place)) {
            click(table->mapTo(&window(), place), 2);
        }
    }
    void pressNotice()
    {
        auto& notice = find<NoticeBar>("noticeBar");
        auto* const button = notice.findChild<FormButton*>();
        if (!notice.isShowingNotice() || below(4) == 0 || button->isHidden()) {
            notice.findChild<DismissButton*>()->click();
            require(!notice.isShowingNotice(), "a dismissed notice stays");
            return;
        }
        const auto title = button->text();
        button->click();
        if (title == QStringLiteral("Undo")) {
            m_model.undo();
        } else if (title == QStringLiteral("Redo")) {
            m_model.redo();
        } else {
            require(title == QStringLiteral("Continue"), "a button of no known use");
            const auto now = editors();
            require(!now.typedForStatement.empty() || !now.typedForCard.empty(),
                    "there is nothing to go on with");
        }
    }
    void openMenu()
    {
        const auto menus = window().menuBar()->actions();
        auto* const menu = menus.at(below(static_cast<unsigned>(menus.size())));
        const auto before = editors();
        click(
            window().menuBar()->mapTo(&window(), window().menuBar()->actionGeometry(menu).center()),
            1);
        while (auto* const popup = QApplication::activePopupWidget()) {
            popup->close();
        }
        const auto now = editors();
        require(now.statement == before.statement && now.card == before.card,
                "a menu closed an editor");
    }

    /// An open editor stands at its record, and what is selected is there.
    void checkWindow()
    {
        for (auto* const popover : {controller().statementPopover(), controller().cardPopover()}) {
            const auto place =
                popover ? controller().popoverWillReposition(*popover) : std::nullopt;
            require(!popover || (place && popover->positioningRect() == place->rect),
                    "an editor stands elsewhere than its record");
        }
        const auto open = editors();
        require(!open.originalStatement ||
                    (m_model.now.statements.contains(open.originalStatement) &&
                     open.originalStatement != nullptr),
                "an editor is open for a statement that is gone");
        require(!open.cardOfMonths || m_model.now.cards.contains(open.cardOfMonths),
                "an editor is open for a card that is gone");
        require(!open.originalCard || m_model.now.cards.contains(open.originalCard),
                "an editor is open for a card that is gone");
        require(find<CVTimelineTableView>("timelineTableView").selectedRow() ==
                    controller().selectedRow(),
                "another band is highlighted than the list has selected");
        require(!controller().selectedStatement() ||
                    m_model.now.statements.contains(controller().selectedStatement()),
                "a statement is selected that is gone");
    }
    /// What was typed is still there, is a record now, or the window says where it went.
    void checkTyping(const Editors& before)
    {
        const auto now = editors();
        const auto& notice = find<NoticeBar>("noticeBar");
        const bool isOffered =
            notice.isShowingNotice() &&
            notice.findChild<FormButton*>()->text() == QStringLiteral("Continue");
        const bool isTold = isOffered || (notice.isShowingNotice() && now.notice != before.notice);
        const bool isWritten = now.records != before.records;
        const bool hasStatement = now.statement &&
                                  now.originalStatement == before.originalStatement &&
                                  now.cardOfMonths == before.cardOfMonths;
        require(
            before.typedForStatement.empty() || isTold || isWritten ||
                (hasStatement && now.typedForStatement.size() == before.typedForStatement.size()),
            "what was typed for a statement is gone without a word");
        const bool hasCard = now.card && now.originalCard == before.originalCard;
        require(before.typedForCard.empty() || isTold || isWritten ||
                    (hasCard && now.typedForCard.size() == before.typedForCard.size()),
                "what was typed for a card is gone without a word");
    }

    void zoomOrScroll()
    {
        static constexpr const char* commands[] = {"zoomIn", "zoomOut", "zoom1", "zoom10"};
        if (below(2) == 0) {
            command(any(commands));
            return;
        }
        auto* const table = window().findChild<QWidget*>(QStringLiteral("timelineTableView"));
        const QPoint turn(static_cast<int>(below(5)) * 120 - 240,
                          static_cast<int>(below(3)) * 120 - 120);
        static constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier};
        QWheelEvent wheel({50.0, 20.0}, table->mapToGlobal(QPointF(50.0, 20.0)), {}, turn,
                          Qt::NoButton, any(modifiers), Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(table->parentWidget(), &wheel);
    }

    /// Finds the outcome that came to pass. Throws when it is none of them.
    void compare(const Outcomes& outcomes)
    {
        const auto records = PlainRecords::of(context());
        bool isExpected = false;
        for (auto outcome : outcomes) {
            nameNewRecords(outcome.records, records);
            auto model = m_model;
            model.change(outcome.records, outcome.name);
            if (!context().hasChanges()) {
                model.save();
            }
            if (model.now == records) {
                m_model = std::move(model);
                isExpected = true;
                break;
            }
        }
        if (!isExpected) {
            std::ostringstream text;
            text << "the records are not as they must be, but\n";
            for (const auto& line : records.lines()) {
                text << "  " << line << '\n';
            }
            text << "and were\n";
            for (const auto& line : m_model.now.lines()) {
                text << "  " << line << '\n';
            }
            throw std::runtime_error(text.str());
        }
        context().checkInvariants();
        const auto& undoManager = context().undoManager();
        require(undoManager.canUndo() == m_model.canUndo() &&
                    undoManager.canRedo() == m_model.canRedo(),
                "there are other steps to undo or redo");
        require(undoManager.undoActionName() == m_model.undoName() &&
                    undoManager.redoActionName() == m_model.redoName(),
                "a step is named " + undoManager.undoActionName().toStdString() + " and not " +
                    m_model.undoName().toStdString());
        if (m_checked != m_model.saved) {
            require(PlainRecords::linesInFile(m_home.filePath(
                        QStringLiteral("Corvane/storedata.sqlite"))) == m_model.saved.lines(),
                    "the file is not what was saved");
            m_checked = m_model.saved;
        }
    }
    /// A record that was new to the model goes by the name of the real one that was.
    void nameNewRecords(PlainRecords& expected, const PlainRecords& real) const
    {
        const auto rename = [](auto& expectedOnes, const auto& realOnes, const auto& known) {
            auto unnamed = expectedOnes.extract(nullptr);
            if (unnamed.empty()) {
                return;
            }
            for (const auto& [record, values] : realOnes) {
                if (!known.contains(record)) {
                    unnamed.key() = record;
                }
            }
            expectedOnes.insert(std::move(unnamed));
        };
        rename(expected.cards, real.cards, m_model.now.cards);
        rename(expected.statements, real.statements, m_model.now.statements);
    }

    QTemporaryDir m_home;
    NoAlerts m_alerts;
    std::mt19937 m_chance;
    PlainModel m_model;
    PlainRecords m_checked;
    bool m_wasTypingTakenBack = false;
    std::unique_ptr<Corvane_AppDelegate> m_delegate;
};

/// What went wrong on this walk, and before how many steps were taken; nothing when all went well.
std::optional<std::pair<std::string, std::size_t>> failureOf(const Steps& steps)
{
    std::size_t taken = 0;
    try {
        Walk walk;
        for (; taken < steps.size(); ++taken) {
            walk.take(steps[taken]);
        }
    } catch (const NSError& error) {
        return {{error.localizedDescription().toStdString(), taken}};
    } catch (const std::exception& exception) {
        return {{exception.what(), taken}};
    }
    return std::nullopt;
}

/// The shortest walk found that fails too, by leaving out ever smaller parts.
Steps shrunk(Steps steps)
{
    for (std::size_t part = steps.size() / 2; part > 0; part = part / 2) {
        for (std::size_t from = 0; from < steps.size();) {
            Steps fewer = steps;
            const auto begin = fewer.begin() + static_cast<std::ptrdiff_t>(from);
            fewer.erase(begin,
                        begin + static_cast<std::ptrdiff_t>(std::min(part, steps.size() - from)));
            if (failureOf(fewer)) {
                steps = std::move(fewer);
            } else {
                from += part;
            }
        }
    }
    return steps;
}

} // namespace

TEST(RandomWalkTest, whateverAPersonDoesTheRecordsAreTheModels)
{
    constexpr std::size_t stepsOfAWalk = 400;
    const auto wanted = qEnvironmentVariableIntValue("CORVANE_STEPS");
    const auto walks = std::max<std::size_t>(static_cast<std::size_t>(wanted), 3000) / stepsOfAWalk;
    const auto first = qEnvironmentVariableIsSet("CORVANE_SEED")
                           ? static_cast<unsigned>(qEnvironmentVariableIntValue("CORVANE_SEED"))
                           : std::random_device{}() % 1'000'000;
    std::cerr << walks << " walks from seed " << first << std::endl;
    for (unsigned walk = 0; walk < walks; ++walk) {
        auto steps = randomSteps(first + walk, stepsOfAWalk);
        if (const auto failure = failureOf(steps)) {
            steps.resize(failure->second + 1);
            const auto few = shrunk(steps);
            FAIL() << "seed " << first + walk << ": " << failureOf(few).value_or(*failure).first
                   << "\nin short: " << described(few);
        }
    }
}
