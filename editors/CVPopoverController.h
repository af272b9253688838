#pragma once

#include "foundation/KeyValueObserving.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

class NSManagedObject;
class NSManagedObjectContext;
class NSPopover;
class QLabel;
class QPushButton;
class QWidget;
class StyledTextField;
class TypedTextGuard;

/// What the editors that a popover shows have in common: a form over a record of the scratch
/// context, with a button that confirms, one that cancels, and a quiet line above both.
///
/// Return confirms while the confirm button is enabled, Escape cancels. What is typed is in the
/// record at once; what cannot be read stays in its field, is marked with the reason, and keeps the
/// form from being confirmed.
class CVPopoverController : public QObject, public KeyValueObject
{
    Q_OBJECT

public:
    CVPopoverController();
    ~CVPopoverController() override;

    /// The form. It belongs to the controller, and is lent to the popover while that shows it.
    QWidget& view() const { return *m_view; }

    /// The context of the records that are edited. Null at first; it must outlive its use here.
    NSManagedObjectContext* context() const { return m_context; }
    void setContext(NSManagedObjectContext* context);

    /// What shows the form; null while nothing does.
    NSPopover* popover() const;
    void setPopover(NSPopover* popover);

    /// Whether the person confirmed when the form was last closed by one of its own actions, unless
    /// the owner has said otherwise since.
    bool isDirty() const { return m_isDirty; }
    void setIsDirty(bool isDirty);

    /// What stands in the fields that the person changed since the record was handed over, by the
    /// fields' object names.
    using TypedTexts = std::map<QString, QString>;
    /// Empty when nothing was typed. A text that was typed back to what it was does not count.
    TypedTexts typedTexts() const;
    /// Types them again into the open form: what can be read reaches the record, what cannot stays
    /// in its field as it was, marked as when the person leaves it. Texts of fields that the form
    /// does not have are left out.
    void restoreTypedTexts(const TypedTexts& texts);

    /// The record changes under the form: `change` gives it its other values. The fields show them,
    /// but what was typed stays.
    void changeRecord(const std::function<void()>& change);

    /// "Update" while the editor has the record to be changed, "Add" while it has none.
    virtual QString okButtonTitle() const = 0;

    KeyValueObservable* observableValueForKey(std::string_view key) override;

public Q_SLOTS:
    /// The Escape key: closes the popover; nothing is confirmed.
    void cancelOperation();
    /// The cancel button: the same.
    void cancel();

protected:
    /// The parts that every form has; the form owns them.
    struct FormParts
    {
        QPushButton* okButton;
        QPushButton* cancelButton;
        QLabel* line;
        /// In their order.
        std::vector<StyledTextField*> fields;
        /// Those of the fields that have one, in the same order.
        std::vector<TypedTextGuard*> guards;
    };

    /// To be called once, when the form has its parts. `confirm` is what the confirm button does.
    void setUpForm(FormParts parts, const std::function<void()>& confirm);

    /// To be called when the form shows a record that was handed over, before anything is typed.
    void recordWasHandedOver();

    /// A new record in the context. Throws std::logic_error when there is none.
    NSManagedObject& insertIntoContext(std::string_view entityName) const;

    /// Why the form cannot be confirmed as it stands, apart from texts that are marked; empty, as
    /// unless overridden, when it can.
    virtual QString refusal() const;
    /// What the line says while there is nothing to complain of. Nothing, unless overridden.
    virtual QString lineText() const;
    /// The line may have something else to say. What keeps the form from being confirmed is told to
    /// assistive technology too.
    void updateLine();

    /// Whether all that was typed can be read; if not, the first field that cannot has the focus.
    bool commitEditing();
    void closePopover();

    /// Calls `handler` after each change of this key path of the controller.
    void observeOwn(std::string_view keyPath, const std::function<void()>& handler);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<QWidget> m_view;
    FormParts m_form{};
    /// What each field showed when the record was handed over.
    TypedTexts m_handedOver;
    NSManagedObjectContext* m_context = nullptr;
    QPointer<NSPopover> m_popover;
    bool m_isDirty = false;
    std::vector<KeyValueObservation> m_observations;
};
