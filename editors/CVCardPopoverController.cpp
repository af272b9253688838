#include "editors/CVCardPopoverController.h"

#include "editors/TypedTextGuard.h"
#include "foundation/Currency.h"
#include "model/CVCard.h"
#include "store/NSManagedObjectContext.h"

#include "ui_CVCardPopover.h"

#include <stdexcept>

namespace {

/// Shows what the record has, unless the field shows it already: the caret stays where it is when
/// the record takes over what is being typed.
void showText(QLineEdit& field, const std::optional<QString>& text)
{
    if (field.text() != text.value_or(QString())) {
        field.setText(text.value_or(QString()));
        field.setCursorPosition(0);
    }
}

bool isGone(const CVCard* card)
{
    return card && card->isDeleted();
}

} // namespace

CVCardPopoverController::CVCardPopoverController()
    : m_ui(std::make_unique<Ui::CVCardPopover>())
{
    m_ui->setupUi(&view());
    awakeFromNib();
}

CVCardPopoverController::~CVCardPopoverController() = default;

void CVCardPopoverController::awakeFromNib()
{
    setUpForm({m_ui->okButton,
               m_ui->cancelButton,
               m_ui->line,
               {m_ui->nameField, m_ui->accountField, m_ui->currencyChooser},
               {&m_ui->currencyChooser->guard()}},
              [this] { addOrUpdateCard(); });
    connect(m_ui->nameField, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (m_card && m_card->name().value_or(QString()) != text) {
            m_card->setName(text);
        }
    });
    connect(m_ui->accountField, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (m_card && m_card->account().value_or(QString()) != text) {
            m_card->setAccount(text);
        }
    });
    connect(m_ui->currencyChooser, &CurrencyChooser::currencyDidChange, this, [this] {
        if (m_card) {
            m_card->setCcy(m_ui->currencyChooser->currency());
        }
    });
    observeOwn("card", [this] { showCurrency(); });
    observeOwn("card.name",
               [this] { showText(*m_ui->nameField, m_card ? m_card->name() : std::nullopt); });
    observeOwn("card.account", [this] {
        showText(*m_ui->accountField, m_card ? m_card->account() : std::nullopt);
    });
    observeOwn("card.ccy", [this] {
        if (m_card && m_card->ccy() != m_ui->currencyChooser->currency()) {
            showCurrency();
        }
    });
    setCurrencyList(Currency::isoCodes());
}

void CVCardPopoverController::showCurrency()
{
    const auto code = m_card ? m_card->ccy() : std::nullopt;
    m_ui->currencyChooser->setCurrency(code.value_or(QString()));
}

void CVCardPopoverController::setCard(CVCard* card)
{
    {
        const KeyValueChange change(*this, "card");
        m_card = card;
    }
    recordWasHandedOver();
}

void CVCardPopoverController::setCurrencyList(const QStringList& codes)
{
    const KeyValueChange change(*this, "currencyList");
    m_currencyList = codes;
    m_ui->currencyChooser->setCurrencyList(codes);
}

void CVCardPopoverController::setOriginalCard(CVCard* card)
{
    const KeyValueChange change(*this, "originalCard");
    m_originalCard = card;
}

QString CVCardPopoverController::okButtonTitle() const
{
    return m_originalCard ? tr("Update") : tr("Add");
}

CVCard& CVCardPopoverController::createNewCard()
{
    auto& newCard = static_cast<CVCard&>(insertIntoContext("Card"));
    setCard(&newCard);
    if (newCard.ccy().value_or(QString()).isEmpty()) {
        if (const auto code = Currency::localCode()) {
            newCard.setCcy(*code);
        }
    }
    context()->processPendingChanges();
    recordWasHandedOver();
    return newCard;
}

void CVCardPopoverController::addOrUpdateCard()
{
    if (!commitEditing()) {
        return;
    }
    if (isGone(m_originalCard) || isGone(m_card)) {
        cancelOperation();
        return;
    }
    if (auto* const scratch = context()) {
        const UndoRegistrationDisabled disabled(scratch->undoManager());
        scratch->processPendingChanges();
    }
    setIsDirty(true);
    closePopover();
}

std::vector<std::string_view>
CVCardPopoverController::keyPathsForValuesAffectingValueForKey(std::string_view key) const
{
    static constexpr KeyDependency dependencies[] = {{"okButtonTitle", "originalCard"}};
    auto paths = CVPopoverController::keyPathsForValuesAffectingValueForKey(key);
    addDependencies(paths, key, dependencies);
    return paths;
}

KeyValueObservable* CVCardPopoverController::observableValueForKey(std::string_view key)
{
    if (key == "card") {
        return m_card;
    }
    if (key == "originalCard") {
        return m_originalCard;
    }
    return CVPopoverController::observableValueForKey(key);
}
