#include "controls/TSTokenMimeData.h"

TSTokenMimeData::TSTokenMimeData(TSFieldParts parts) : m_parts(std::move(parts))
{
    setText(displayText(m_parts));
}

QString TSTokenMimeData::displayText(const TSFieldParts &parts)
{
    QString text;
    for (const TSFieldPart &part : parts) {
        const auto *token = std::get_if<TSFieldToken>(&part);
        text += token ? token->title : std::get<QString>(part);
    }
    return text;
}
