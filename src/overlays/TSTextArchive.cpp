#include "naming/TSToken.h"
#include "overlays/TSPackedColor.h"
#include "overlays/TSText.h"
#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"

// The archive of `TSText`. The picture and the layout are not part of it; they are made anew at the first
// draw.

namespace {

platform::ArchiveValue archivedValues(const std::vector<TSTokenValue> &values)
{
    platform::ArchiveValue::Array array;
    for (const TSTokenValue &value : values) {
        if (const QString *text = std::get_if<QString>(&value))
            array.append(*text);
        else
            array.append(std::get<std::shared_ptr<TSToken>>(value));
    }
    return array;
}

std::vector<TSTokenValue> decodedValues(const platform::ArchiveValue &archived)
{
    std::vector<TSTokenValue> values;
    for (const platform::ArchiveValue &value : archived.toArray()) {
        if (auto token = value.toObject<TSToken>())
            values.emplace_back(std::move(token));
        else if (value.isString())
            values.emplace_back(value.toString());
        else
            // Whatever else archives hold takes its place all the same, where the words before it are
            // repeated.
            values.emplace_back(std::make_shared<TSToken>());
    }
    return values;
}

} // namespace

/// While the base reads its keys the text type still reads plain: a Script text gets the canvas as its frame
/// from the next rebuild only.
TSText::TSText(platform::KeyedUnarchiver &coder) : TSOverlay(coder)
{
    m_look.strokeWidth = double(coder.decodeFloat(u"strokeWidth"));
    m_look.strokeColor = TSUnpackColor(coder.decodeInteger(u"strokeColor"));
    m_look.glowBlur = double(coder.decodeFloat(u"glowBlur"));
    m_look.glowWidth = double(coder.decodeFloat(u"glowWidth"));
    m_look.glowColor = TSUnpackColor(coder.decodeInteger(u"glowColor"));
    m_tileHeight = double(coder.decodeFloat(u"tileHeight"));
    m_tileSpace = double(coder.decodeFloat(u"tileSpace"));
    m_fontDic = coder.decodeObject(u"fontDic").toTextAttributes().value_or(platform::TextAttributes());
    m_textAlignment = platform::TextAlignment(coder.decodeInteger(u"textAlignment"));
    m_lineCounts = std::max<qint64>(1, coder.decodeInteger(u"lineCounts"));
    m_oldLineCounts = std::max<qint64>(1, coder.decodeInteger(u"oldLineCounts"));
    m_textArray = decodedValues(coder.decodeObject(u"textArray"));
    m_look.isStrokeEnable = coder.decodeBool(u"isStrokeEnable");
    m_look.isGlowEnable = coder.decodeBool(u"isGlowEnable");
    m_isShadowEnable = coder.decodeBool(u"isShadowEnable");
    m_textType = int(coder.decodeInteger(u"textType"));
    m_scriptOrigin = coder.decodePoint(u"scriptOrigin");
    m_textSizeOfScript = coder.decodeSize(u"textSizeOfScript");
    m_limitRectRatio = coder.decodeRect(u"limitRectRatio");
    m_textStorage =
        coder.decodeObject(u"textStorage").toAttributedString().value_or(platform::AttributedString());
    rows().changeAll([this](TSRow &row) { writeTextRow(row); });
}

QStringList TSText::classChain() const
{
    return QStringList{QStringLiteral("TSText")} + TSOverlay::classChain();
}

void TSText::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    TSOverlay::encodeWithCoder(coder);
    coder.encodeFloat(u"strokeWidth", float(m_look.strokeWidth));
    coder.encodeInteger(u"strokeColor", TSPackColor(m_look.strokeColor));
    coder.encodeFloat(u"glowBlur", float(m_look.glowBlur));
    coder.encodeFloat(u"glowWidth", float(m_look.glowWidth));
    coder.encodeInteger(u"glowColor", TSPackColor(m_look.glowColor));
    coder.encodeFloat(u"tileHeight", float(m_tileHeight));
    coder.encodeFloat(u"tileSpace", float(m_tileSpace));
    coder.encodeObject(u"fontDic", m_fontDic);
    coder.encodeInteger(u"textAlignment", qint64(m_textAlignment));
    coder.encodeInteger(u"lineCounts", m_lineCounts);
    coder.encodeInteger(u"oldLineCounts", m_oldLineCounts);
    coder.encodeObject(u"textArray", archivedValues(m_textArray));
    coder.encodeBool(u"isStrokeEnable", m_look.isStrokeEnable);
    coder.encodeBool(u"isGlowEnable", m_look.isGlowEnable);
    coder.encodeBool(u"isShadowEnable", m_isShadowEnable);
    coder.encodeInteger(u"textType", m_textType);
    coder.encodePoint(u"scriptOrigin", m_scriptOrigin);
    coder.encodeSize(u"textSizeOfScript", m_textSizeOfScript);
    coder.encodeRect(u"limitRectRatio", m_limitRectRatio);
    coder.encodeObject(u"textStorage", m_textStorage);
}
