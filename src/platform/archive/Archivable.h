#pragma once

#include <QStringList>

namespace platform {

class KeyedArchiver;

/// An object of the program that a keyed archive can hold. Its class names are part of the file format.
class Archivable {
public:
    virtual ~Archivable() = default;

    /// The object's class and its bases, the most derived first, without the root class.
    virtual QStringList classChain() const = 0;
    virtual void encodeWithCoder(KeyedArchiver &coder) const = 0;
};

} // namespace platform
