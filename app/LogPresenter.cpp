#include "app/LogPresenter.h"

#include "foundation/Log.h"
#include "store/NSError.h"

void LogPresenter::presentError(const NSError& error)
{
    Log::line(error.description());
}

bool LogPresenter::presentError(const NSError& error, const Recovery& /*recovery*/)
{
    presentError(error);
    return false;
}

int LogPresenter::runModalAlert(const Alert& alert)
{
    Log::line(QString(alert.message + u' ' + alert.informativeText));
    return firstButton + static_cast<int>(alert.buttonTitles.size()) - 1;
}
