#pragma once

#include <QMetaType>
#include <QStringList>
#include <QVariant>
#include <variant>
#include <vector>

/// A token as a field shows it. `object` belongs to whoever made the token and is only handed back; a token
/// dropped twice stands in two places with one object. An empty menu gives a token that offers nothing.
struct TSFieldToken {
    QString title;
    QStringList menu;
    QVariant object;
};
Q_DECLARE_METATYPE(TSFieldToken)

/// A piece of a field's line: text as it stands, or a token.
using TSFieldPart = std::variant<QString, TSFieldToken>;
using TSFieldParts = std::vector<TSFieldPart>;
