#pragma once

#include <QObject>
#include <QString>

#include <functional>

class StyledTextField;
class QWidget;

/// Sees to it that a text that cannot be used does not get lost: the field that it was typed into
/// is marked with the reason, and keeps the focus when the person goes on to another field.
class TypedTextGuard : public QObject
{
    Q_OBJECT

public:
    /// Answers in one line why the field's text cannot be used; empty when it can.
    using Refusal = std::function<QString()>;

    /// The field owns the guard.
    TypedTextGuard(StyledTextField& field, Refusal refusal);

    StyledTextField& field() const { return m_field; }

    /// Whether the text can be used; if not, the field is marked from now on. The mark goes when
    /// the text changes into one that can be used.
    bool commitEditing();

Q_SIGNALS:
    /// The person is done with the field for now: the last moment to complete the text.
    void willCommitEditing();
    /// The field was marked, or its mark or reason changed.
    void markDidChange();

private:
    void mark();
    void focusDidChange(const QWidget* before, const QWidget* now);

    /// Whether a guard is bringing the focus back to its field.
    inline static bool s_isReturningFocus = false;

    StyledTextField& m_field;
    Refusal m_refusal;
};
