#pragma once

class CVStatement;
class QString;

/// What the program says of a statement where nothing but its dot is drawn.
namespace StatementText {

/// "14/11/2026, £500.00 ÷ £1,000.00 = 50.0%". Without a date, only what follows it.
QString title(const CVStatement& statement);

/// The title, and on a second line the payment and the rate.
QString toolTip(const CVStatement& statement);

} // namespace StatementText
