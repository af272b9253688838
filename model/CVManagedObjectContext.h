#pragma once

#include "foundation/Instant.h"
#include "store/NSEntityDescription.h"
#include "store/PropertyValue.h"

#include <QRectF>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class CVCard;
class CVStatement;
class NSManagedObjectContext;

/// Questions about the whole store, asked of the main context. Each asks the file anew. What fails
/// is logged in one line and answered with the neutral value that the operation names.
namespace CVManagedObjectContext {

/// The earliest (latest) statement date in the file, of whatever card. Unsaved changes are not
/// seen, save while the context's latest save has failed: what was confirmed then is reached as
/// well. Absent when there is none, or on failure.
std::optional<Instant> firstStatementDate(NSManagedObjectContext& context);
std::optional<Instant> lastStatementDate(NSManagedObjectContext& context);

/// Seconds between those dates; 0 without statements.
double timeIntervalBetweenFirstAndLastStatements(NSManagedObjectContext& context);
/// Seconds from the beginning of the first statement's month to the end of the last one's; 0
/// without statements.
double timeIntervalBetweenFirstAndLastStatementMonths(NSManagedObjectContext& context);

/// The horizontal scale of the timeline in a frame of this width, in seconds per point: the span of
/// the months over the width less its margins of 8 points at each side, twelve hours when there is
/// no span. A width of 16 makes it infinite, a smaller one negative.
double timeIntervalPerPointInCellFrame(NSManagedObjectContext& context, const QRectF& frame);

/// Unsaved records count. 0 on failure.
std::size_t cardCount(NSManagedObjectContext& context);
std::size_t statementCount(NSManagedObjectContext& context);
/// Whether statementCount() is not 0, without counting.
bool hasStatements(NSManagedObjectContext& context);

/// Every card, with or without statements, in the store's order. Absent on failure.
std::optional<std::vector<CVCard*>> allCardsWithStatements(NSManagedObjectContext& context);

/// The sum of the cards' last balances and the sum of their last limits, whatever their currencies.
/// Both 0 on failure.
std::array<double, 2> totalDebtAndCredit(NSManagedObjectContext& context);

/// Saves. False when it failed: that is logged, and the changes stay in the context.
bool saveAndLogError(NSManagedObjectContext& context);

} // namespace CVManagedObjectContext

namespace CVManagecObjectContextInternal {

/// One value computed by the file over all statements, for example "@min.date". Absent when there
/// is none, or on failure.
PropertyValue fetchStatementAttributeWithKeyPathExpression(NSManagedObjectContext& context,
                                                           const std::string& keyPath,
                                                           NSAttributeType type,
                                                           const std::string& name);

/// The last statements of the cards, in the order of the cards, all as of one moment; a card
/// without statements has none there. Empty on failure.
std::vector<CVStatement*> lastStatements(NSManagedObjectContext& context);

} // namespace CVManagecObjectContextInternal
