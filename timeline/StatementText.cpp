#include "timeline/StatementText.h"

#include "foundation/DateFormatter.h"
#include "model/CVStatement.h"

#include <QCoreApplication>
#include <QStringList>

QString StatementText::title(const CVStatement& statement)
{
    const auto date = statement.date();
    const auto amounts = statement.formattedBalanceAndLimit();
    return date ? QCoreApplication::translate("StatementText", "%1, %2")
                      .arg(DateFormatter::shortText(*date), amounts)
                : amounts;
}

QString StatementText::toolTip(const CVStatement& statement)
{
    QStringList details;
    if (const auto payment = statement.formattedPayment()) {
        details.append(QCoreApplication::translate("StatementText", "Payment %1").arg(*payment));
    }
    details.append(statement.formattedAPR());
    return title(statement) + u'\n' + details.join(QStringLiteral("  ·  "));
}
