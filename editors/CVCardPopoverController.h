#pragma once

#include "editors/CVPopoverController.h"

#include <QStringList>

class CVCard;
class QLineEdit;

namespace Ui {
class CVCardPopover;
} // namespace Ui

/// The editor of a card: its name, its account and its currency. It edits `card` as it is typed,
/// and leaves it to the owner to take over what was confirmed.
///
/// To add a card, the owner sets `context` and calls createNewCard(); to edit one, it sets
/// `context`, `originalCard` and `card`, a scratch copy of it. Then it shows view() in a popover,
/// and sets `popover`.
class CVCardPopoverController : public CVPopoverController
{
    Q_OBJECT

public:
    CVCardPopoverController();
    ~CVCardPopoverController() override;

    /// What is edited; null while nothing is.
    CVCard* card() const { return m_card; }
    void setCard(CVCard* card);

    /// The codes that the currency can be chosen from: at first all that the system knows, in its
    /// order.
    const QStringList& currencyList() const { return m_currencyList; }
    void setCurrencyList(const QStringList& codes);

    /// The card that `card` is a copy of; null while adding one.
    CVCard* originalCard() const { return m_originalCard; }
    void setOriginalCard(CVCard* card);

    QString okButtonTitle() const override;

    /// A new card in `context`, with the currency that is used where the person is; it is `card`
    /// now. Throws std::logic_error without a context.
    CVCard& createNewCard();

    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
    KeyValueObservable* observableValueForKey(std::string_view key) override;

public Q_SLOTS:
    /// The confirm button: closes the popover, confirmed. Without effect while a text cannot be
    /// read. When the card was deleted meanwhile, the popover closes and nothing is confirmed.
    void addOrUpdateCard();

private:
    void awakeFromNib();
    void bindText(QLineEdit& field, std::string_view keyPath);
    void showCurrency();

    std::unique_ptr<Ui::CVCardPopover> m_ui;
    CVCard* m_card = nullptr;
    QStringList m_currencyList;
    CVCard* m_originalCard = nullptr;
};
