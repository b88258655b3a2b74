#include "platform/metadata/PhotoshopResources.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <QtEndian>

namespace platform {

namespace {

/// Names and data are filled up to even lengths.
constexpr qsizetype even(qsizetype length)
{
    return length + length % 2;
}

/// Other programs keep resources of their own among those of Photoshop.
bool beginsResource(QByteArrayView bytes)
{
    static constexpr const char *signatures[] = {"8BIM", "MeSa", "AgHg", "PHUT", "DCSR"};
    return std::any_of(std::begin(signatures), std::end(signatures),
                       [&](const char *signature) { return bytes.startsWith(signature); });
}

std::optional<PhotoshopResource> resourceAt(QByteArrayView block, qsizetype at)
{
    constexpr qsizetype fixedLength = 12;
    constexpr qsizetype nameField = 6;
    if (at + fixedLength > block.size() || !beginsResource(block.sliced(at)))
        return {};
    PhotoshopResource resource;
    resource.id = qFromBigEndian<quint16>(block.data() + at + 4);
    const qsizetype lengthField = at + nameField + even(1 + quint8(block[at + nameField]));
    resource.begin = lengthField + 4;
    if (resource.begin > block.size())
        return {};
    const qsizetype told = qFromBigEndian<quint32>(block.data() + lengthField);
    resource.length = std::min(told, block.size() - resource.begin);
    return resource;
}

} // namespace

std::vector<PhotoshopResource> readPhotoshopResources(QByteArrayView block)
{
    std::vector<PhotoshopResource> result;
    qsizetype at = 0;
    while (const std::optional<PhotoshopResource> resource = resourceAt(block, at)) {
        result.push_back(*resource);
        at = resource->begin + even(resource->length);
    }
    return result;
}

} // namespace platform
