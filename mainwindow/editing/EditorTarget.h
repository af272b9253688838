#pragma once

#include "editors/CVPopoverController.h"
#include "store/NSManagedObject.h"

/// What an editor is open for: where its confirm writes to, and where its popover stands. The kind
/// names both, so that the one cannot be another than the other.
struct EditorTarget
{
    enum class Kind
    {
        /// A card that is still to be made; stands at the list's title.
        NewCard,
        /// A card; stands at its row.
        Card,
        /// A statement that is still to be made, for the card `record`; stands at the "+" of that
        /// card's row.
        NewStatement,
        /// A statement; stands at its dot.
        Statement,
    };

    Kind kind = Kind::NewCard;
    /// A live record of the main context; null for a new card only.
    NSManagedObject* record = nullptr;

    bool isStatement() const { return kind == Kind::NewStatement || kind == Kind::Statement; }
    /// Whether a confirm makes a record; else it changes the one that there is.
    bool isNew() const { return kind == Kind::NewCard || kind == Kind::NewStatement; }
    /// Whether the record was deleted meanwhile.
    bool isGone() const { return record && record->isDeleted(); }

    bool operator==(const EditorTarget&) const = default;
};

/// An editor that was given up: what it takes to open it again with all that was typed.
struct EditorDraft
{
    EditorTarget target;
    /// Empty when nothing was typed.
    CVPopoverController::TypedTexts texts;

    bool operator==(const EditorDraft&) const = default;
};
