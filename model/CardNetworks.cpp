#include "model/CardNetworks.h"

#include <array>

namespace CVAdditions {

std::optional<QString> defaultCardImagePathForKind(const QString& kind)
{
    struct Network
    {
        QStringView title;
        QStringView picture;
    };
    static constexpr auto networks = std::to_array<Network>({
        {u"MasterCard", u"mastercard.png"},
        {u"Visa", u"visa.png"},
        {u"American Express", u"amex.png"},
        {u"Discover", u"discover.png"},
        {u"Other", u"generic_3.png"},
    });
    for (const auto& network : networks) {
        if (network.title == kind) {
            return network.picture.toString();
        }
    }
    return std::nullopt;
}

} // namespace CVAdditions
