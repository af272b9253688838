#pragma once

#include <QObject>
#include <QPointer>

class AccessibleRowList;
class AccessibleTimelineRow;
class CVStatement;
class CVTimelineTableView;
class NSManagedObjectContext;
struct ObjectChanges;

/// Tells assistive technology what happens to the statements of a timeline, as long as any listens.
class AccessibleStatementEvents : public QObject
{
    Q_OBJECT

public:
    /// The table must outlive this.
    explicit AccessibleStatementEvents(CVTimelineTableView& table);

    /// The context of the statements; null for none.
    void setManagedObjectContext(NSManagedObjectContext* context);

    /// Either may be null, deleted, or of a card that is not listed.
    void selectedStatementDidChange(CVStatement* previous, CVStatement* current);

private:
    void objectsDidChange(const ObjectChanges& changes);
    void announceChanges(const AccessibleRowList& list, const ObjectChanges& changes);
    /// Null when the statement has no date, or a card that is not listed.
    AccessibleTimelineRow* rowOf(const AccessibleRowList& list, const CVStatement& statement) const;

    CVTimelineTableView& m_table;
    QPointer<NSManagedObjectContext> m_context;
};
