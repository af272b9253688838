#include "app/DemoStore.h"

#include "foundation/Clock.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "model/Calculations.h"
#include "store/NSManagedObjectContext.h"

#include <QCoreApplication>
#include <QString>

#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

namespace {

/// A card whose usage moves in waves between its first statement and its last.
struct DemoCard
{
    const char* name;
    const char* account;
    const char* ccy;
    /// How many statements there are, one a month; the last lies in this month.
    int statements;
    /// The day of the month of each statement.
    int day;
    /// In the currency's smallest unit, and how many of them make one.
    std::int64_t limit;
    int minorUnits;
    /// The fraction of the limit that is owed at first and at last, and how far it swings between.
    double firstUsage;
    double lastUsage;
    double swing;
    /// The fraction of the balance that is paid each month; 0 pays less than the interest.
    double payment;
    double annualRate;
};

constexpr std::array demoCards = {
    DemoCard{"Aurora Gold", "•••• 4410", "GBP", 45, 14, 500'000, 100, 0.55, 0.082, 0.12, 0.36,
             0.189},
    DemoCard{"Harbour Everyday", "•••• 0093", "GBP", 39, 2, 520'000, 100, 0.22, 0.446, 0.14, 0.08,
             0.214},
    DemoCard{"Meridian Travel", "•••• 7725", "EUR", 30, 22, 450'000, 100, 0.35, 0.868, 0.06, 0.045,
             0.249},
    DemoCard{"Northgate Store", "", "GBP", 8, 20, 80'000, 100, 0.45, 0.108, 0.04, 0.6, 0.299},
    DemoCard{"Prairie Rewards", "•••• 6182", "USD", 24, 9, 1'200'000, 100, 0.61, 0.952, 0.03, 0.0,
             0.279},
    DemoCard{"Tsubaki", "•••• 3306", "JPY", 34, 5, 300'000, 1, 0.62, 0.427, 0.09, 0.13, 0.15},
};

NSDecimalNumber amount(double inMinorUnits, int minorUnits)
{
    const auto rounded = std::llround(inMinorUnits);
    if (minorUnits == 1) {
        return NSDecimalNumber(rounded);
    }
    const auto whole = std::to_string(rounded / minorUnits);
    const auto rest = std::to_string(minorUnits + rounded % minorUnits).substr(1);
    return NSDecimalNumber::fromText(whole + '.' + rest).value_or(NSDecimalNumber());
}

/// Noon of a day of this month.
Instant dayOfThisMonth(int day)
{
    const auto monthStart = Calculations::beginningOfMonth(Clock::now());
    return Calculations::advance(monthStart, 0, 0, 0, day - 1, 12, 0, 0).value_or(monthStart);
}

void addCard(NSManagedObjectContext& context, const DemoCard& demo)
{
    auto& card = static_cast<CVCard&>(context.insertNewObjectForEntityForName("Card"));
    card.setName(QString::fromUtf8(demo.name));
    card.setAccount(QString::fromUtf8(demo.account));
    card.setCcy(QString::fromLatin1(demo.ccy));

    // Nobody has statements of the days to come.
    auto last = dayOfThisMonth(demo.day);
    if (Calculations::future(last)) {
        last = Calculations::prevMonth(last).value_or(last);
    }
    const auto limit = static_cast<double>(demo.limit);
    for (int i = 0; i < demo.statements; ++i) {
        const int monthsAgo = demo.statements - 1 - i;
        const double progress = static_cast<double>(i) / (demo.statements - 1);
        const double wave = std::sin(progress * 3.0 * std::numbers::pi) +
                            0.25 * std::sin(static_cast<double>(i) * 1.7);
        const double usage = std::lerp(demo.firstUsage, demo.lastUsage, progress) +
                             demo.swing * wave * std::sin(progress * std::numbers::pi);
        const double balance = limit * usage;
        const double interest = balance * demo.annualRate / 12.0;
        const double payment = demo.payment > 0.0 ? balance * demo.payment : interest * 0.9;

        auto& statement =
            static_cast<CVStatement&>(context.insertNewObjectForEntityForName("Statement"));
        statement.setDate(Calculations::monthsSince(last, -monthsAgo));
        statement.setBalance(amount(balance, demo.minorUnits));
        statement.setLimit(amount(limit, demo.minorUnits));
        statement.setPayment(amount(payment, demo.minorUnits));
        statement.setAnnualPercentageRate(demo.annualRate);
        statement.setCard(&card);
    }
}

} // namespace

void DemoStore::fill(NSManagedObjectContext& context)
{
    for (const auto& demo : demoCards) {
        addCard(context, demo);
    }
    context.save();
    context.undoManager().removeAllActions();
}

QString DemoStore::windowTitle()
{
    // Qt would add the program's name to a title that does not end with it.
    return u"[*]" + QCoreApplication::translate("DemoStore", "Demo, nothing is kept – Corvane");
}
