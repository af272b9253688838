#pragma once

#include <QObject>
#include <QPointer>

class AccessibleRowList;
class QAbstractItemModel;
class QItemSelection;
class QItemSelectionModel;
class RowTableView;

/// Tells assistive technology what happens to the rows of a table, as long as any listens: which
/// come, go, are renamed, selected, or get the keyboard.
class AccessibleRowEvents : public QObject
{
    Q_OBJECT

public:
    /// The table must outlive this.
    explicit AccessibleRowEvents(RowTableView& table);

    /// Null for none.
    void setModel(QAbstractItemModel* model);
    void setSelectionModel(QItemSelectionModel* selectionModel);

    /// What is told of any of the rows may have changed.
    void descriptionsDidChange();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Null while nobody listens.
    AccessibleRowList* list() const;
    void rowsDidAppear(int first, int last);
    void rowsWillDisappear(int first, int last);
    void rowsDidDisappear();
    void allRowsAreOthers();
    void namesDidChange(int first, int last);
    void selectionDidChange(const QItemSelection& selected, const QItemSelection& deselected);
    void announceFocus();

    RowTableView& m_table;
    QPointer<QAbstractItemModel> m_model;
    QPointer<QItemSelectionModel> m_selectionModel;
};
