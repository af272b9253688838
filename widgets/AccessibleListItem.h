#pragma once

#include "foundation/Log.h"

#include <QAccessible>

#include <exception>

/// A part of a table that a person may select, as a screen reader meets it: something that is drawn
/// and no widget itself.
///
/// It has no parts of its own unless a subclass says so.
class AccessibleListItem : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    ~AccessibleListItem() override = default;

    /// Does what a single press on the item does. ("Press" is for what a double one does.)
    static const QString& selectAction();

    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent()->window(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString localizedActionName(const QString& action) const override;
    QString localizedActionDescription(const QString& action) const override;
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

    /// Tells assistive technology, if it listens and the item is valid.
    void announce(QAccessible::Event type);
    /// Tells it that the item is about to be removed. It answers as valid meanwhile, though what it
    /// stands for is gone: only then its end is passed on.
    void announceRemoval();

    /// What `read` answers; what its type is by default, and a line in the log, when it throws. An
    /// exception must not run through the code of the bus that asks.
    template <typename Read>
    static auto answer(Read read) -> decltype(read())
    {
        try {
            return read();
        } catch (const std::exception& exception) {
            Log::line(QString(u"Unable to describe the window to assistive technology: " +
                              QString::fromUtf8(exception.what())));
            return decltype(read())();
        }
    }

protected:
    bool isBeingRemoved() const { return m_isBeingRemoved; }

private:
    bool m_isBeingRemoved = false;
};
