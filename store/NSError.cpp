#include "store/NSError.h"

#include <utility>

NSError::NSError(QString domain, int code, ErrorText description, ErrorText failureReason,
                 ErrorText brief)
    : m_domain(std::move(domain))
    , m_code(code)
    , m_description(std::move(description))
    , m_failureReason(std::move(failureReason))
    , m_brief(std::move(brief))
    , m_what(this->description().toStdString())
{}

const QString& NSError::localizedBrief() const
{
    return m_brief.localized().isEmpty() ? localizedDescription() : m_brief.localized();
}

QString NSError::description() const
{
    QString text = m_description.english();
    if (!m_failureReason.english().isEmpty()) {
        text += u" " + m_failureReason.english();
    }
    return text + u" (" + m_domain + u", " + QString::number(m_code) + u")";
}
