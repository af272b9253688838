#include "editors/CVStatementPopoverController.h"

#include "editors/TypedTextGuard.h"
#include "foundation/Clock.h"
#include "foundation/DateFormatter.h"
#include "foundation/NumberFormatter.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "model/Calculations.h"
#include "model/DebtForecast.h"
#include "store/NSManagedObjectContext.h"

#include "ui_CVStatementPopover.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

/// What a statement says besides its date.
constexpr auto figureKeys =
    std::to_array<std::string_view>({"balance", "limit", "payment", "annualPercentageRate"});

} // namespace

CVStatementPopoverController::CVStatementPopoverController()
    : m_ui(std::make_unique<Ui::CVStatementPopover>())
{
    m_ui->setupUi(&view());
    awakeFromNib();
}

CVStatementPopoverController::~CVStatementPopoverController() = default;

void CVStatementPopoverController::awakeFromNib()
{
    setUpForm({m_ui->okButton,
               m_ui->cancelButton,
               m_ui->line,
               {m_ui->dateField, m_ui->balanceField, m_ui->limitField, m_ui->paymentField,
                m_ui->rateField},
               {&m_ui->balanceField->guard(), &m_ui->limitField->guard(),
                &m_ui->paymentField->guard(), &m_ui->rateField->guard()}},
              [this] { addOrUpdateStatement(); });
    for (const std::string_view keyPath : {"statement.date", "date", "originalStatement"}) {
        observeOwn(keyPath, [this, keyPath] { observeValueForKeyPath(keyPath); });
    }
    bindFields();
    triggerRefresh();
}

/// Ties each field to the value that it shows, both ways.
void CVStatementPopoverController::bindFields()
{
    connect(m_ui->dateField, &OASteppableTextField::objectValueDidChange, this,
            [this] { setDate(m_ui->dateField->date()); });
    observeOwn("date", [this] {
        if (m_ui->dateField->date() != m_date) {
            m_ui->dateField->setDate(m_date);
        }
    });
    // What was typed for another statement and could not be read is no date of this one.
    observeOwn("statement", [this] { m_ui->dateField->setDate(m_date); });

    bindAmount(*m_ui->balanceField, "statement.balance");
    bindAmount(*m_ui->limitField, "statement.limit");
    bindAmount(*m_ui->paymentField, "statement.payment");

    connect(m_ui->rateField, &OASteppableTextField::objectValueDidChange, this, [this] {
        if (m_statement && m_ui->rateField->isReadable()) {
            m_statement->setAnnualPercentageRate(m_ui->rateField->rate());
        }
        updateLine();
    });
    observeOwn("statement.annualPercentageRate", [this] {
        m_ui->rateField->setRate(m_statement ? m_statement->annualPercentageRate() : std::nullopt);
        updateLine();
    });

    observeOwn("canAddStatementForDate", [this] {
        const auto reason = refusal();
        m_ui->okButton->setEnabled(reason.isEmpty());
        m_ui->dateField->setAccessibleDescription(reason);
        updateLine();
    });
}

void CVStatementPopoverController::bindAmount(AmountField& field, std::string_view keyPath)
{
    const auto key = keyPath.substr(keyPath.find('.') + 1);
    connect(&field, &OASteppableTextField::objectValueDidChange, this, [this, &field, key] {
        if (m_statement && field.isReadable()) {
            m_statement->setValueForKey(field.objectValue(), key);
        }
        updateLine();
    });
    observeOwn(keyPath, [this, &field, key] {
        const auto value = m_statement ? m_statement->valueForKey(key) : PropertyValue();
        field.setNumber(propertyValueAs<NSDecimalNumber>(value));
        updateLine();
    });
    observeOwn("card.ccy",
               [this, &field] { field.setCurrency(m_card ? m_card->ccy() : std::nullopt); });
}

OADatePickerTextField& CVStatementPopoverController::dateField() const
{
    return *m_ui->dateField;
}

void CVStatementPopoverController::setCard(CVCard* card)
{
    const KeyValueChange change(*this, "card");
    m_card = card;
    // What the card has decides about the date, and may be undone while the form is open.
    disconnect(m_cardChanges);
    if (card) {
        m_cardChanges =
            connect(&card->managedObjectContext(), &NSManagedObjectContext::objectsDidChange, this,
                    &CVStatementPopoverController::triggerRefresh);
    }
}

void CVStatementPopoverController::setStatement(CVStatement* statement)
{
    {
        const KeyValueChange change(*this, "statement");
        m_statement = statement;
    }
    recordWasHandedOver();
}

void CVStatementPopoverController::setOriginalStatement(CVStatement* statement)
{
    const KeyValueChange change(*this, "originalStatement");
    m_originalStatement = statement;
}

void CVStatementPopoverController::setDate(const std::optional<Instant>& date)
{
    const KeyValueChange change(*this, "date");
    m_date = date;
}

bool CVStatementPopoverController::canAddStatementForDate() const
{
    return refusal().isEmpty();
}

/// What is wrong with the date, or with confirming at all.
QString CVStatementPopoverController::refusal() const
{
    if (isTargetGone()) {
        return tr("This was deleted meanwhile.");
    }
    if (!m_date) {
        return m_ui->dateField->text().trimmed().isEmpty() ? tr("There is no date.")
                                                           : tr("This is not a date.");
    }
    if (Calculations::future(*m_date)) {
        return tr("This date is still to come.");
    }
    const auto* const clash = m_card ? m_card->statementForDate(*m_date) : nullptr;
    if (!clash || clash == m_originalStatement) {
        return {};
    }
    return tr("%1 has a statement already, of %2.")
        .arg(DateFormatter::textOfFields(*m_date, u"yMMMM"_qs),
             DateFormatter::shortText(clash->date().value()));
}

void CVStatementPopoverController::triggerRefresh()
{
    const KeyValueChange change(*this, "canAddStatementForDate");
}

QString CVStatementPopoverController::okButtonTitle() const
{
    return m_originalStatement ? tr("Update") : tr("Add");
}

CVStatement& CVStatementPopoverController::createNewStatement()
{
    auto& newStatement = static_cast<CVStatement&>(insertIntoContext("Statement"));
    setStatement(&newStatement);
    setOriginalStatement(nullptr);
    newStatement.setDate(Clock::now());
    setDate(newStatement.date());
    copyFromLastStatement(newStatement);
    context()->processPendingChanges();
    recordWasHandedOver();
    return newStatement;
}

void CVStatementPopoverController::copyFromLastStatement(CVStatement& newStatement) const
{
    const auto* const last = m_card ? m_card->lastStatement() : nullptr;
    if (!last) {
        return;
    }
    newStatement.setLimit(last->limit());
    newStatement.setPayment(last->payment());
    newStatement.setMonthlyPercentageRate(last->monthlyPercentageRate());
    // The monthly rate gave it a yearly one that is off by a rounding; this is the exact one.
    newStatement.setAnnualPercentageRate(last->annualPercentageRate());
}

void CVStatementPopoverController::addOrUpdateStatement()
{
    if (!commitEditing() || !m_date) {
        return;
    }
    if (isTargetGone()) {
        cancelOperation();
        return;
    }
    if (m_statement) {
        m_statement->setDate(m_date);
    }
    setIsDirty(true);
    closePopover();
}

bool CVStatementPopoverController::isTargetGone() const
{
    return (m_card && m_card->isDeleted()) ||
           (m_originalStatement && m_originalStatement->isDeleted());
}

/// What the numbers mean as they stand in the form, with the date that is typed there.
QString CVStatementPopoverController::lineText() const
{
    const bool isReadable = m_ui->balanceField->isReadable() && m_ui->limitField->isReadable() &&
                            m_ui->paymentField->isReadable() && m_ui->rateField->isReadable();
    if (!m_statement || !isReadable) {
        return {};
    }
    if (auto correction = correctionText(); !correction.isEmpty()) {
        return correction;
    }
    return DebtForecast::formattedForecast(DebtForecast::numberOfPaymentsToClear(*m_statement),
                                           m_date);
}

/// What a save will put in place of the amounts as they stand in the form; empty for nothing.
QString CVStatementPopoverController::correctionText() const
{
    const auto corrections =
        willBeCorrected() ? m_statement->corrections() : CVStatement::Corrections();
    const auto text = [this](const NSDecimalNumber& amount) {
        return NumberFormatter::currencyText(amount.toPlainText(),
                                             m_card ? m_card->ccy() : std::nullopt);
    };
    if (corrections.limit && corrections.payment) {
        return tr("The limit and the payment will become the balance, %1.")
            .arg(text(*corrections.limit));
    }
    if (corrections.limit) {
        return tr("The limit will be raised to the balance, %1.").arg(text(*corrections.limit));
    }
    if (corrections.payment) {
        return tr("A payment of nothing will become the whole balance, %1.")
            .arg(text(*corrections.payment));
    }
    return {};
}

/// Whether confirming changes a statement that is in the store: the others are saved as they are.
bool CVStatementPopoverController::willBeCorrected() const
{
    const auto* const original = m_originalStatement;
    if (!original || original->isInserted() || original->isDeleted()) {
        return false;
    }
    return original->isUpdated() || original->date() != m_date ||
           std::ranges::any_of(figureKeys, [&](std::string_view key) {
               return original->valueForKey(key) != m_statement->valueForKey(key);
           });
}

void CVStatementPopoverController::observeValueForKeyPath(std::string_view keyPath)
{
    if (keyPath == "statement.date") {
        setDate(m_statement ? m_statement->date() : std::nullopt);
        triggerRefresh();
    } else if (keyPath == "date") {
        triggerRefresh();
        updateLine();
    } else if (keyPath == "originalStatement") {
        triggerRefresh();
    }
}

std::vector<std::string_view>
CVStatementPopoverController::keyPathsForValuesAffectingValueForKey(std::string_view key) const
{
    static constexpr KeyDependency dependencies[] = {{"okButtonTitle", "originalStatement"}};
    auto paths = CVPopoverController::keyPathsForValuesAffectingValueForKey(key);
    addDependencies(paths, key, dependencies);
    return paths;
}

KeyValueObservable* CVStatementPopoverController::observableValueForKey(std::string_view key)
{
    if (key == "card") {
        return m_card;
    }
    if (key == "statement") {
        return m_statement;
    }
    if (key == "originalStatement") {
        return m_originalStatement;
    }
    return CVPopoverController::observableValueForKey(key);
}
