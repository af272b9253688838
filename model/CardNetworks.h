#pragma once

#include <QString>

#include <optional>

namespace CVAdditions {

/// The file name of the picture of a card of this network ("Visa"); absent for any other text.
std::optional<QString> defaultCardImagePathForKind(const QString& kind);

} // namespace CVAdditions
