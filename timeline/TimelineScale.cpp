#include "timeline/TimelineScale.h"

#include "model/CVManagedObjectContext.h"

#include <QRectF>

#include <cmath>

TimelineScale::TimelineScale(NSManagedObjectContext& context, const QRectF& frame)
    : m_secondsPerPoint(CVManagedObjectContext::timeIntervalPerPointInCellFrame(context, frame))
    , m_firstStatementDate(CVManagedObjectContext::firstStatementDate(context))
    , m_lastStatementDate(CVManagedObjectContext::lastStatementDate(context))
{}

double TimelineScale::points(double seconds) const
{
    return std::floor(seconds / m_secondsPerPoint);
}
