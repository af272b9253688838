#pragma once

#include "foundation/KeyValueObserving.h"
#include "store/ObjectChanges.h"

#include <QAbstractListModel>
#include <QItemSelectionModel>

#include <optional>
#include <string>
#include <vector>

class NSManagedObject;
class NSManagedObjectContext;

/// All records of an entity in one context, sorted by a text attribute, as a list that follows
/// every change, with a selection of its own.
///
/// The first record is selected when content arrives, and a neighbour when the selected one goes,
/// so that something is selected as long as there is anything. Observe "selectionIndex" to follow.
class NSArrayController : public QAbstractListModel, public KeyValueObject
{
    Q_OBJECT

public:
    /// Sorts ascending by the attribute `sortKey`, by plain comparison; records without it come
    /// first. Shows the text that a record has for `displayKey`.
    NSArrayController(std::string entityName, std::string sortKey, std::string displayKey,
                      QObject* parent = nullptr);

    /// Shows the records of `context`, none without one. The context must outlive the controller or
    /// be taken away again. Throws NSError when the records cannot be read; the list is empty then,
    /// and read when the context changes next.
    void setManagedObjectContext(NSManagedObjectContext* context);
    NSManagedObjectContext* managedObjectContext() const { return m_context; }

    /// Whether there is a context whose records could be read.
    bool isFetched() const { return m_isFetched; }

    const std::vector<NSManagedObject*>& arrangedObjects() const { return m_arranged; }
    /// The one in this row; null when there is no such row.
    NSManagedObject* objectAtRow(int row) const;
    /// The position of a record; absent when it is not in the list.
    std::optional<std::size_t> indexOfObject(const NSManagedObject* object) const;

    /// The selection as the tables share it.
    QItemSelectionModel& selectionModel() { return m_selectionModel; }
    /// The last selected position; absent when nothing is selected.
    std::optional<std::size_t> selectionIndex() const;
    /// A position beyond the list changes nothing; an absent one clears the selection.
    void setSelectionIndex(std::optional<std::size_t> index);
    std::vector<NSManagedObject*> selectedObjects() const;
    /// Selects exactly these; those that are not in the list are left out.
    void setSelectedObjects(const std::vector<NSManagedObject*>& objects);

    /// Deletes the selected records from the context.
    void remove();

    int rowCount(const QModelIndex& parent = {}) const override;
    /// The text of a record, for display and for accessibility.
    QVariant data(const QModelIndex& index, int role) const override;

private:
    void fetch();
    void updateWithChanges(const ObjectChanges& changes);
    void removeObject(const NSManagedObject* object);
    void insertObject(NSManagedObject* object);
    /// Moves what is out of order; equals keep their places.
    void rearrange();
    std::vector<NSManagedObject*> sorted(const std::vector<NSManagedObject*>& objects) const;
    bool isShown(const NSManagedObject* object) const;
    bool sortsBefore(const NSManagedObject* left, const NSManagedObject* right) const;
    void selectSomething(std::size_t preferredIndex);

    std::string m_entityName;
    std::string m_sortKey;
    std::string m_displayKey;
    NSManagedObjectContext* m_context = nullptr;
    bool m_isFetched = false;
    std::vector<NSManagedObject*> m_arranged;
    QItemSelectionModel m_selectionModel;
};
