#include "editors/CVCardPopoverController.h"

#include "editors/TypedTextGuard.h"
#include "foundation/Currency.h"
#include "model/CVCard.h"
#include "store/NSManagedObjectContext.h"

#include "ui_CVCardPopover.h"

#include <QRegularExpression>

namespace {

/// A name is one line: what comes in several, as pasted texts do, is one with spaces.
QString inOneLine(QString text)
{
    static const QRegularExpression lineBreak(u"\\r\\n|[\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]"_qs);
    return text.replace(lineBreak, u" "_qs);
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
    bindText(*m_ui->nameField, "card.name");
    bindText(*m_ui->accountField, "card.account");
    connect(m_ui->currencyChooser, &CurrencyChooser::currencyDidChange, this, [this] {
        if (m_card) {
            m_card->setCcy(m_ui->currencyChooser->currency());
        }
    });
    observeOwn("card", [this] { showCurrency(); });
    observeOwn("card.ccy", [this] {
        if (m_card && m_card->ccy() != m_ui->currencyChooser->currency()) {
            showCurrency();
        }
    });
    setCurrencyList(Currency::isoCodes());
}

/// Ties a field to the text that it shows, both ways.
void CVCardPopoverController::bindText(QLineEdit& field, std::string_view keyPath)
{
    const auto key = keyPath.substr(keyPath.find('.') + 1);
    const auto recordText = [this, key] {
        const auto value = m_card ? m_card->valueForKey(key) : PropertyValue();
        return propertyValueAs<QString>(value).value_or(QString());
    };
    connect(&field, &QLineEdit::textChanged, this, [this, &field, key, recordText] {
        const auto text = field.text();
        if (!m_card || text == recordText()) {
            return;
        }
        const auto caret = inOneLine(text.left(field.cursorPosition())).size();
        m_card->setValueForKey(inOneLine(text), key);
        if (field.text() != text) {
            field.setCursorPosition(static_cast<int>(caret));
        }
    });
    // The caret stays where it is when the record takes over what is being typed.
    observeOwn(keyPath, [&field, recordText] {
        if (field.text() != recordText()) {
            field.setText(recordText());
            field.setCursorPosition(0);
        }
    });
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
