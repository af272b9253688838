#include "mainwindow/NoticeText.h"

#include "foundation/DateFormatter.h"
#include "mainwindow/editing/EditorTarget.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSError.h"

#include <QCoreApplication>

namespace {

QString nameOf(const CVCard* card)
{
    return card ? card->displayName() : QString();
}

QString dateOf(const CVStatement& statement)
{
    const auto date = statement.date();
    return date ? DateFormatter::shortText(*date) : QString();
}

/// What is said of an editor, for each kind of target.
struct Wording
{
    const char* newCard;
    /// %1 is the card.
    const char* card;
    const char* newStatement;
    /// %1 is the date, %2 the card.
    const char* statement;
};

QString said(const Wording& wording, const EditorTarget& target)
{
    const auto text = [](const char* source) {
        return QCoreApplication::translate("NoticeText", source);
    };
    if (target.kind == EditorTarget::Kind::NewCard) {
        return text(wording.newCard);
    }
    if (target.kind != EditorTarget::Kind::Statement) {
        return text(target.isNew() ? wording.newStatement : wording.card)
            .arg(nameOf(static_cast<const CVCard*>(target.record)));
    }
    const auto& statement = static_cast<const CVStatement&>(*target.record);
    return text(wording.statement).arg(dateOf(statement), nameOf(statement.card()));
}

} // namespace

QString NoticeText::deleted(const CVCard& card)
{
    const auto count = static_cast<int>(card.statements().size());
    switch (count) {
    case 0:
        return QCoreApplication::translate("NoticeText", "Deleted %1").arg(nameOf(&card));
    case 1:
        return QCoreApplication::translate("NoticeText", "Deleted %1 and its statement")
            .arg(nameOf(&card));
    default:
        return QCoreApplication::translate("NoticeText", "Deleted %1 and its %n statements",
                                           nullptr, count)
            .arg(nameOf(&card));
    }
}

QString NoticeText::deleted(const CVStatement& statement)
{
    return QCoreApplication::translate("NoticeText", "Deleted the statement of %1 for %2")
        .arg(dateOf(statement), nameOf(statement.card()));
}

QString NoticeText::dropped(const EditorTarget& target)
{
    return said({QT_TRANSLATE_NOOP("NoticeText", "The new card was not added"),
                 QT_TRANSLATE_NOOP("NoticeText", "%1 was not changed"),
                 QT_TRANSLATE_NOOP("NoticeText", "The statement for %1 was not added"),
                 QT_TRANSLATE_NOOP("NoticeText", "The statement of %1 for %2 was not changed")},
                target);
}

QString NoticeText::unconfirmed(const EditorTarget& target)
{
    return said({QT_TRANSLATE_NOOP("NoticeText", "The new card is not added yet"),
                 QT_TRANSLATE_NOOP("NoticeText", "%1 is not changed yet"),
                 QT_TRANSLATE_NOOP("NoticeText", "The statement for %1 is not added yet"),
                 QT_TRANSLATE_NOOP("NoticeText", "The statement of %1 for %2 is not changed yet")},
                target);
}

QString NoticeText::gone(const EditorTarget& target)
{
    return target.kind == EditorTarget::Kind::Statement
               ? QCoreApplication::translate("NoticeText",
                                             "The statement is gone, so the editor was closed")
               : QCoreApplication::translate("NoticeText",
                                             "The card is gone, so the editor was closed");
}

QString NoticeText::written(const CVCard& card, bool isNew)
{
    return (isNew ? QCoreApplication::translate("NoticeText", "Added %1")
                  : QCoreApplication::translate("NoticeText", "Changed %1"))
        .arg(nameOf(&card));
}

QString NoticeText::unsaved(const NSError& error)
{
    return QCoreApplication::translate("NoticeText", "Not saved: %1").arg(error.localizedBrief());
}
