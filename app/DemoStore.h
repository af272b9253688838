#pragma once

#include <QString>

class NSManagedObjectContext;

/// Invented cards for people who want to look around first.
namespace DemoStore {

/// Adds six cards with some years of statements up to this month, and saves. No step to undo is
/// left. Throws NSError when saving fails.
void fill(NSManagedObjectContext& context);

/// Tells people who type in their own cards that nothing will be kept; with the place of the mark
/// of unsaved changes.
QString windowTitle();

} // namespace DemoStore
