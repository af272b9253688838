#pragma once

#include "widgets/AccessibleAnnouncements.h"

#include <QAccessible>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <map>
#include <utility>

/// Listens as assistive technology does, while it lives: one at a time.
class AccessibilityEvents
{
public:
    AccessibilityEvents() { AccessibleAnnouncements::setListener(note); }
    ~AccessibilityEvents()
    {
        AccessibleAnnouncements::setListener(nullptr);
        noted.clear();
    }
    Q_DISABLE_COPY_MOVE(AccessibilityEvents)

    /// What happened to list items since the last call, each with the name of its item.
    static QStringList take() { return std::exchange(noted, {}); }

private:
    static void note(QAccessibleEvent& event)
    {
        static const std::map<int, QString> names = {
            {QAccessible::Selection, QStringLiteral("selected")},
            {QAccessible::SelectionRemove, QStringLiteral("unselected")},
            {QAccessible::Focus, QStringLiteral("focused")},
            {QAccessible::ObjectCreated, QStringLiteral("added")},
            {QAccessible::ObjectDestroyed, QStringLiteral("removed")},
            {QAccessible::NameChanged, QStringLiteral("renamed")},
            {QAccessible::DescriptionChanged, QStringLiteral("described")},
        };
        auto* const item = event.accessibleInterface();
        const auto name = names.find(event.type());
        if (item && item->role() == QAccessible::ListItem && name != names.end()) {
            EXPECT_TRUE(item->isValid());
            noted.append(QString(name->second + u' ' + item->text(QAccessible::Name)));
        }
    }

    static inline QStringList noted;
};
