#pragma once

#include <QString>

struct EditorTarget;
class CVCard;
class CVStatement;
class NSError;

/// The words of the notices.
namespace NoticeText {

/// To be asked while the record is still there.
QString deleted(const CVCard& card);
QString deleted(const CVStatement& statement);

/// An editor was given up, and with it what was typed.
QString dropped(const EditorTarget& target);
/// The person wants to quit while something typed is not confirmed.
QString unconfirmed(const EditorTarget& target);
/// What an editor was open for was deleted or taken back, and the editor closed.
QString gone(const EditorTarget& target);
/// An editor closed by itself, and wrote what was typed.
QString written(const CVCard& card, bool isNew);

QString unsaved(const NSError& error);

} // namespace NoticeText
