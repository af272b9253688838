#pragma once

#include "editors/CVPopoverController.h"
#include "foundation/Instant.h"

#include <optional>

class AmountField;
class CVCard;
class CVStatement;
class OADatePickerTextField;

namespace Ui {
class CVStatementPopover;
} // namespace Ui

/// The editor of a statement: its date and its figures. It edits the figures of `statement` as they
/// are typed; the date is kept apart until it is confirmed, because a card has one statement a
/// month, and none in the future. It leaves it to the owner to take over what was confirmed.
///
/// To add a statement, the owner sets `originalStatement` to null, `isDirty` to false, `context`
/// and `card`, and calls createNewStatement(); to edit one, it sets `context`, `card`, `statement`,
/// a scratch copy, and `originalStatement`. Then it shows view() in a popover, and sets `popover`.
class CVStatementPopoverController : public CVPopoverController
{
    Q_OBJECT

public:
    CVStatementPopoverController();
    ~CVStatementPopoverController() override;

    OADatePickerTextField& dateField() const;

    /// The card, in the main context, that the statement belongs to or will; null while none does.
    CVCard* card() const { return m_card; }
    void setCard(CVCard* card);

    /// What is edited; null while nothing is. It has no card. Setting it sets `date`.
    CVStatement* statement() const { return m_statement; }
    void setStatement(CVStatement* statement);

    /// The statement that `statement` is a copy of; null while adding one.
    CVStatement* originalStatement() const { return m_originalStatement; }
    void setOriginalStatement(CVStatement* statement);

    /// The date in the date field; absent while there is none, or its text cannot be read.
    const std::optional<Instant>& date() const { return m_date; }
    void setDate(const std::optional<Instant>& date);

    /// Whether the date may be confirmed: there is one, it is not in the future, and no other
    /// statement of the card lies in its month. Not when the card or the original was deleted.
    /// Throws NSError when the card's statements cannot be read.
    bool canAddStatementForDate() const;
    /// Announces "canAddStatementForDate".
    void triggerRefresh();

    QString okButtonTitle() const override;

    /// A new statement in `context`, of today, with the limit, payment and rate of the card's last
    /// one; it is `statement` now, and there is no original. Throws std::logic_error without a
    /// context, NSError when the card's statements cannot be read.
    CVStatement& createNewStatement();

    std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const override;
    KeyValueObservable* observableValueForKey(std::string_view key) override;

public Q_SLOTS:
    /// The confirm button: gives the statement the date and closes the popover, confirmed. Without
    /// effect while a text cannot be read. When the card or the original was deleted meanwhile, the
    /// popover closes and nothing is confirmed.
    void addOrUpdateStatement();

protected:
    QString refusal() const override;
    QString lineText() const override;

private:
    void awakeFromNib();
    void bindFields();
    void bindAmount(AmountField& field, std::string_view keyPath);
    void observeValueForKeyPath(std::string_view keyPath);
    void copyFromLastStatement(CVStatement& newStatement) const;
    QString correctionText() const;
    bool willBeCorrected() const;
    bool isTargetGone() const;

    std::unique_ptr<Ui::CVStatementPopover> m_ui;
    CVCard* m_card = nullptr;
    CVStatement* m_statement = nullptr;
    CVStatement* m_originalStatement = nullptr;
    std::optional<Instant> m_date;
    QMetaObject::Connection m_cardChanges;
};
