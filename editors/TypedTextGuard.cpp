#include "editors/TypedTextGuard.h"

#include "widgets/StyledTextField.h"

#include <QAccessible>
#include <QApplication>
#include <QScopedValueRollback>

#include <utility>

TypedTextGuard::TypedTextGuard(StyledTextField& field, Refusal refusal)
    : QObject(&field)
    , m_field(field)
    , m_refusal(std::move(refusal))
{
    connect(&field, &QLineEdit::textChanged, this, [this] {
        // Half typed, every text is wrong: what is no mark yet becomes none.
        if (!m_field.invalidReason().isEmpty()) {
            mark();
        }
    });
    connect(qApp, &QApplication::focusChanged, this, &TypedTextGuard::focusDidChange);
}

bool TypedTextGuard::commitEditing()
{
    Q_EMIT willCommitEditing();
    mark();
    return m_field.invalidReason().isEmpty();
}

void TypedTextGuard::mark()
{
    const auto reason = m_refusal();
    if (reason != m_field.invalidReason()) {
        m_field.setInvalidReason(reason);
        Q_EMIT markDidChange();
    }
}

void TypedTextGuard::focusDidChange(const QWidget* before, const QWidget* now)
{
    if (s_isReturningFocus) {
        return;
    }
    // Out of its form the person may go at any time: the form stays open, or is given up.
    if (before != &m_field || !now || !m_field.isVisible() || !m_field.parentWidget() ||
        !m_field.parentWidget()->isAncestorOf(now)) {
        return;
    }
    if (!commitEditing()) {
        // Two fields that cannot be read would else send the focus to and fro without end.
        const QScopedValueRollback returning(s_isReturningFocus, true);
        m_field.setFocus();
        // Qt tells assistive technology last of the field that the focus only passed through.
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_field.hasFocus()) {
                    QAccessibleEvent event(&m_field, QAccessible::Focus);
                    QAccessible::updateAccessibility(&event);
                }
            },
            Qt::QueuedConnection);
    }
}
