#pragma once

#include "store/ErrorText.h"

#include <QString>

#include <exception>
#include <string>

/// A failed operation, as it is told to a person: what could not be done, and why.
class NSError : public std::exception
{
public:
    /// `domain` and `code` name the failure to a program; `description` says to a person what
    /// failed, `failureReason` why (empty when nothing more is known), `brief` the cause in a few
    /// words that can follow a colon: "the disk is full".
    NSError(QString domain, int code, ErrorText description, ErrorText failureReason = {},
            ErrorText brief = {});

    const QString& domain() const { return m_domain; }
    int code() const { return m_code; }
    const QString& localizedDescription() const { return m_description.localized(); }
    const QString& localizedFailureReason() const { return m_failureReason.localized(); }

    /// The description where there are no briefer words.
    const QString& localizedBrief() const;

    /// Everything in one line and in English, for the log.
    QString description() const;
    const char* what() const noexcept override { return m_what.c_str(); }

private:
    QString m_domain;
    int m_code;
    ErrorText m_description;
    ErrorText m_failureReason;
    ErrorText m_brief;
    std::string m_what;
};
