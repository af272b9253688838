#include "store/NSArrayController.h"

#include "tests/support/LibraryStore.h"

#include <gtest/gtest.h>

#include <random>

namespace {

QStringList names(const NSArrayController& controller)
{
    QStringList result;
    for (const auto* const library : controller.arrangedObjects()) {
        result.append(textOf(*library, "name"));
    }
    return result;
}

/// A view of the list that knows only what the list announces.
class Mirror : public QObject
{
public:
    explicit Mirror(NSArrayController& list)
    {
        const auto nameAt = [&list](int row) {
            return list.data(list.index(row), Qt::DisplayRole).toString();
        };
        connect(&list, &QAbstractItemModel::rowsInserted, this,
                [this, nameAt](const QModelIndex&, int first, int last) {
                    for (int row = first; row <= last; ++row) {
                        names.insert(row, nameAt(row));
                    }
                });
        connect(&list, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex&, int first, int last) {
                    names.remove(first, last - first + 1);
                });
        connect(&list, &QAbstractItemModel::rowsMoved, this,
                [this](const QModelIndex&, int first, int, const QModelIndex&, int to) {
                    names.move(first, to > first ? to - 1 : to);
                });
        connect(&list, &QAbstractItemModel::dataChanged, this,
                [this, nameAt](const QModelIndex& changed) {
                    names[changed.row()] = nameAt(changed.row());
                });
    }

    QStringList names;
};

class NSArrayControllerTest : public testing::Test
{
protected:
    NSArrayControllerTest() { store.open(); }

    LibraryStore store;
    NSArrayController list{"Library", "name", "name"};
};

} // namespace

TEST_F(NSArrayControllerTest, selectsTheFirstRecordAndKeepsSomethingSelected)
{
    int changes = 0;
    const auto observation =
        list.observe("selectionIndex", [&](const ObservedChange&) { ++changes; });
    auto& village = store.insertLibrary(QStringLiteral("Village"));
    auto& city = store.insertLibrary(QStringLiteral("City"));
    list.setManagedObjectContext(&store.context());
    EXPECT_EQ(names(list), QStringList({QStringLiteral("City"), QStringLiteral("Village")}));
    EXPECT_EQ(list.selectionIndex(), 0);
    EXPECT_GE(changes, 1);

    store.context().save();
    list.setSelectedObjects({&village});
    EXPECT_EQ(list.selectionIndex(), 1);
    village.setValueForKey(QStringLiteral("A village"), "name");
    store.context().processPendingChanges();
    EXPECT_EQ(list.selectionIndex(), 0) << "the selection moves with its record";
    list.setSelectionIndex(99);
    EXPECT_EQ(list.selectionIndex(), 0);
    list.remove();
    store.context().processPendingChanges();
    EXPECT_EQ(list.selectedObjects(), std::vector<NSManagedObject*>{&city});
    store.context().save();
    list.remove();
    store.context().processPendingChanges();
    EXPECT_FALSE(list.selectionIndex());
    list.setSelectionIndex(std::nullopt);
    store.context().undoManager().undo();
    EXPECT_EQ(list.selectionIndex(), 0);
    list.setManagedObjectContext(nullptr);
    EXPECT_EQ(list.rowCount(), 0);
}

TEST_F(NSArrayControllerTest, announcesEveryChangeOfTheList)
{
    const auto seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    list.setManagedObjectContext(&store.context());
    const Mirror mirror(list);
    for (int step = 0; step < 300; ++step) {
        for (auto change = random() % 3 + 1; change > 0; --change) {
            const auto name = QString::number(random() % 50);
            const auto records = store.context().executeFetchRequest({"Library"});
            auto* const record = records.empty() ? nullptr : records[random() % records.size()];
            if (!record || random() % 3 == 0) {
                store.insertLibrary(name);
            } else if (random() % 3 == 0) {
                store.context().deleteObject(*record);
            } else {
                record->setValueForKey(name, "name");
            }
        }
        if (random() % 5 == 0) {
            store.context().undoManager().undo();
        }
        store.context().processPendingChanges();
        ASSERT_EQ(mirror.names, names(list)) << "step " << step;
        ASSERT_TRUE(std::ranges::is_sorted(mirror.names)) << "step " << step;
        ASSERT_EQ(list.arrangedObjects().size(), store.context().countForFetchRequest({"Library"}));
    }
}
