#include "editors/CVPopoverController.h"

#include "editors/TypedTextGuard.h"
#include "store/NSManagedObjectContext.h"
#include "widgets/AccessibleAnnouncements.h"
#include "widgets/HighContrast.h"
#include "widgets/NSPopover.h"
#include "widgets/StyledTextField.h"

#include <QAccessible>
#include <QFontInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

/// In points; larger where the desktop's font is.
constexpr int textSize = 13;

constexpr QColor labelColor(0x5A, 0x5A, 0x5A);
constexpr QColor lineColor(0x2B, 0x51, 0x76);
constexpr QColor reasonColor(0xC8, 0x32, 0x2B);

void setTextColor(QWidget& widget, const QColor& color)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, HighContrast::ink(color));
    widget.setPalette(palette);
}

} // namespace

CVPopoverController::CVPopoverController()
    : m_view(std::make_unique<QWidget>())
{}

CVPopoverController::~CVPopoverController() = default;

void CVPopoverController::setContext(NSManagedObjectContext* context)
{
    const KeyValueChange change(*this, "context");
    m_context = context;
}

NSPopover* CVPopoverController::popover() const
{
    return m_popover;
}

void CVPopoverController::setPopover(NSPopover* popover)
{
    const KeyValueChange change(*this, "popover");
    m_popover = popover;
}

void CVPopoverController::setIsDirty(bool isDirty)
{
    const KeyValueChange change(*this, "isDirty");
    m_isDirty = isDirty;
}

CVPopoverController::TypedTexts CVPopoverController::typedTexts() const
{
    TypedTexts texts;
    for (const auto* const field : m_form.fields) {
        const auto handedOver = m_handedOver.find(field->objectName());
        if (handedOver != m_handedOver.end() && field->settledText() != handedOver->second) {
            texts.emplace(field->objectName(), field->text());
        }
    }
    return texts;
}

void CVPopoverController::restoreTypedTexts(const TypedTexts& texts)
{
    for (auto* const field : m_form.fields) {
        const auto typed = texts.find(field->objectName());
        if (typed != texts.end() && typed->second != field->text()) {
            field->setText(typed->second);
        }
    }
    for (auto* const guard : m_form.guards) {
        if (texts.contains(guard->field().objectName())) {
            guard->commitEditing();
        }
    }
}

void CVPopoverController::changeRecord(const std::function<void()>& change)
{
    const auto typed = typedTexts();
    TypedTexts shown;
    for (const auto* const field : m_form.fields) {
        shown.emplace(field->objectName(), field->text());
    }
    change();
    for (const auto* const field : m_form.fields) {
        if (field->text() != shown.at(field->objectName())) {
            m_handedOver[field->objectName()] = field->text();
        }
    }
    restoreTypedTexts(typed);
}

KeyValueObservable* CVPopoverController::observableValueForKey(std::string_view key)
{
    return key == "context" ? m_context : KeyValueObject::observableValueForKey(key);
}

void CVPopoverController::cancelOperation()
{
    setIsDirty(false);
    closePopover();
}

void CVPopoverController::cancel()
{
    cancelOperation();
}

void CVPopoverController::setUpForm(FormParts parts, const std::function<void()>& confirm)
{
    m_form = std::move(parts);
    QFont font = m_view->font();
    font.setPixelSize(std::max(QFontInfo(font).pixelSize(), textSize));
    m_view->setFont(font);
    setTextColor(*m_view, labelColor);

    connect(m_form.okButton, &QPushButton::clicked, this, confirm);
    connect(m_form.cancelButton, &QPushButton::clicked, this, &CVPopoverController::cancel);
    for (const auto* const guard : m_form.guards) {
        connect(guard, &TypedTextGuard::markDidChange, this, &CVPopoverController::updateLine);
    }
    const auto showTitle = [this] {
        m_form.okButton->setText(okButtonTitle());
    };
    observeOwn("okButtonTitle", showTitle);
    showTitle();
    m_view->installEventFilter(this);
}

void CVPopoverController::recordWasHandedOver()
{
    m_handedOver.clear();
    for (const auto* const field : m_form.fields) {
        m_handedOver.emplace(field->objectName(), field->text());
    }
    updateLine();
}

NSManagedObject& CVPopoverController::insertIntoContext(std::string_view entityName) const
{
    if (!m_context) {
        throw std::logic_error("an editor needs a context for new records");
    }
    return m_context->insertNewObjectForEntityForName(entityName);
}

QString CVPopoverController::refusal() const
{
    return {};
}

QString CVPopoverController::lineText() const
{
    return {};
}

void CVPopoverController::updateLine()
{
    const auto marked = std::ranges::find_if(m_form.guards, [](const TypedTextGuard* guard) {
        return !guard->field().invalidReason().isEmpty();
    });
    const bool isMarked = marked != m_form.guards.end();
    const auto reason = isMarked ? (*marked)->field().invalidReason() : refusal();
    // What a form is opened with is no mistake of the person.
    const bool isMistake = isMarked || (!reason.isEmpty() && !typedTexts().empty());
    setTextColor(*m_form.line, isMistake ? reasonColor : lineColor);
    m_form.line->setText(reason.isEmpty() ? lineText() : reason);

    const bool isNews = reason != m_form.okButton->accessibleDescription();
    m_form.okButton->setToolTip(reason);
    m_form.okButton->setAccessibleDescription(reason);
    if (isNews && !reason.isEmpty() && m_form.line->isVisible() &&
        AccessibleAnnouncements::areHeard()) {
        QAccessibleEvent alert(m_form.line, QAccessible::Alert);
        AccessibleAnnouncements::make(alert);
    }
}

bool CVPopoverController::commitEditing()
{
    TypedTextGuard* unreadable = nullptr;
    for (auto* const guard : m_form.guards) {
        if (!guard->commitEditing() && !unreadable) {
            unreadable = guard;
        }
    }
    if (unreadable) {
        unreadable->field().setFocus();
    }
    return !unreadable;
}

void CVPopoverController::closePopover()
{
    if (m_popover) {
        m_popover->close();
    }
}

void CVPopoverController::observeOwn(std::string_view keyPath, const std::function<void()>& handler)
{
    m_observations.push_back(observe(keyPath, [handler](const ObservedChange&) { handler(); }));
}

bool CVPopoverController::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view.get() && event->type() == QEvent::StyleChange) {
        setTextColor(*m_view, labelColor);
        updateLine();
    }
    // The keys that the fields and buttons had no use for.
    if (watched == m_view.get() && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.matches(QKeySequence::Cancel)) {
            cancelOperation();
            return true;
        }
        if (key.matches(QKeySequence::InsertParagraphSeparator)) {
            m_form.okButton->click();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
