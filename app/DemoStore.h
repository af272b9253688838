#pragma once

class NSManagedObjectContext;

/// Invented cards for people who want to look around first.
namespace DemoStore {

/// Adds six cards with some years of statements up to this month, and saves. No step to undo is
/// left. Throws NSError when saving fails.
void fill(NSManagedObjectContext& context);

} // namespace DemoStore
