// What is typed into a date field. Input: a byte for the locale, and the text.

#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/RelativeDateFormatter.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/TypedLocale.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    useLocale(input.take<std::uint8_t>());
    const FixedClock clock(Instant(1374055200));
    const RelativeDateFormatter formatter;
    const auto typed = input.takeRest();
    const auto date = formatter.dateFromString(
        QString::fromUtf8(typed.data(), static_cast<qsizetype>(typed.size())));
    if (!date) {
        return 0;
    }
    require(date->isSupported(), "a date is one that the program works with");
    require(formatter.dateFromString(formatter.stringFromDate(*date)) == *date,
            "what is written is read as the same day");
    for (const auto stepped : {formatter.stepUpValue(date), formatter.largeStepUpValue(date),
                               formatter.stepDownValue(date), formatter.largeStepDownValue(date)}) {
        require(stepped.isSupported(), "a step stays among the dates");
    }
    return 0;
}
