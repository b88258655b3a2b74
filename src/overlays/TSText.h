#pragma once

#include "naming/TSTokenValue.h"
#include "overlays/TSOverlay.h"
#include "overlays/TSTextRenderer.h"
#include "platform/text/AttributedString.h"

class TSPhoto;

namespace TSTextType {
constexpr int Plain = 0;
/// Tiled over the whole canvas.
constexpr int Script = 1;
} // namespace TSTextType

/// A text watermark. Its words are kept twice: as token values, with wildcards that every photo fills in its
/// own way, and as the attributed text on show. It measures itself: the frame takes its shape from the
/// laid-out text and its height from its share of the canvas. Fonts always stand at 36; the size on the
/// canvas comes from scaling.
///
/// After a change of look, text, size or canvas the caller runs `updateRenderTextImage`. One thread at a
/// time.
class TSText : public TSOverlay {
public:
    /// The string must not be empty: the look of all later words is taken from its first character.
    explicit TSText(const QString &string);
    explicit TSText(platform::KeyedUnarchiver &coder);
    std::shared_ptr<TSOverlay> copy() const override;

    bool isStrokeEnable() const { return m_look.isStrokeEnable; }
    void setIsStrokeEnable(bool enable) { m_look.isStrokeEnable = enable; }
    bool isGlowEnable() const { return m_look.isGlowEnable; }
    void setIsGlowEnable(bool enable) { m_look.isGlowEnable = enable; }
    bool isShadowEnable() const { return m_isShadowEnable; }
    void setIsShadowEnable(bool enable) { m_isShadowEnable = enable; }
    double strokeWidth() const { return m_look.strokeWidth; }
    void setStrokeWidth(double width) { m_look.strokeWidth = width; }
    const platform::Color &strokeColor() const { return m_look.strokeColor; }
    void setStrokeColor(const platform::Color &color) { m_look.strokeColor = color; }
    double glowBlur() const { return m_look.glowBlur; }
    void setGlowBlur(double blur) { m_look.glowBlur = blur; }
    double glowWidth() const { return m_look.glowWidth; }
    void setGlowWidth(double width) { m_look.glowWidth = width; }
    const platform::Color &glowColor() const { return m_look.glowColor; }
    void setGlowColor(const platform::Color &color) { m_look.glowColor = color; }

    int textType() const { return m_textType; }
    void setTextType(int type) { m_textType = type; }
    /// In 1/300 of the canvas height.
    double tileHeight() const { return m_tileHeight; }
    void setTileHeight(double height) { m_tileHeight = height; }
    /// In 1/800 of the mean of canvas width and height.
    double tileSpace() const { return m_tileSpace; }
    void setTileSpace(double space) { m_tileSpace = space; }
    /// The shift of the tile grid, in tile pitches, −1 to 1.
    const QPointF &scriptOrigin() const { return m_scriptOrigin; }
    void setScriptOrigin(const QPointF &origin) { m_scriptOrigin = origin; }
    const QSizeF &textSizeOfScript() const { return m_textSizeOfScript; }
    /// The box of a member text, in fractions of its group.
    const QRectF &limitRectRatio() const { return m_limitRectRatio; }
    void setLimitRectRatio(const QRectF &ratio) { m_limitRectRatio = ratio; }

    /// The look that all words get.
    const platform::TextAttributes &fontDic() const { return m_fontDic; }
    void setFontDic(const platform::TextAttributes &attributes) { m_fontDic = attributes; }
    platform::TextAlignment textAlignment() const { return m_textAlignment; }
    void setTextAlignment(platform::TextAlignment alignment) { m_textAlignment = alignment; }
    qint64 lineCounts() const { return m_lineCounts; }
    const std::vector<TSTokenValue> &textArray() const { return m_textArray; }
    void setTextArray(std::vector<TSTokenValue> values) { m_textArray = std::move(values); }
    const platform::AttributedString &textStorage() const { return m_textStorage; }
    void setTextStorage(const platform::AttributedString &text) { m_textStorage = text; }

    /// The size of the laid-out text at its font sizes. Never lower than a line; the width of an empty text
    /// is that of its margins.
    QSizeF naturalSize() const;
    /// Replaces the words, in the look of `fontDic`, and counts the lines.
    void updateText(const QString &string);
    /// Fills the values in for a photo; with the flag the wildcards stand by their names in braces. Takes its
    /// own copy of the values, which become `textArray`. Neither the frame nor the rendering changes.
    void updateTextString(const TSPhoto &photo, std::vector<TSTokenValue> values, bool isTokenName);
    /// Fits the frame to the text. The corner that the text begins at stays, on turned texts too.
    void updateTextFrame();
    /// The same for a member of a group: only the width follows.
    void updateTextFrameOfGroup();
    void updateRenderTextImage();
    void clearTextImageCache() { m_isRendered = false; }

    void drawIncontext(platform::PaintLayer &context) override;
    bool isScript() const override { return m_textType == TSTextType::Script; }

    QStringList classChain() const override;
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

protected:
    TSText(const TSText &other);
    void writeTextRow(TSRow &row) const override { row.scriptOrigin = m_scriptOrigin; }
    void readTextRow(const TSRow &row) override { m_scriptOrigin = row.scriptOrigin; }

private:
    void setShadowOn(platform::PaintLayer &context) const;
    void drawTiles(platform::PaintLayer &context);

    TSTextRenderer m_renderer;
    bool m_isRendered = false;
    QSizeF m_frameSize;
    TSTextLook m_look;
    bool m_isShadowEnable = false;
    int m_textType = TSTextType::Plain;
    double m_tileHeight = 50;
    double m_tileSpace = 50;
    platform::TextAttributes m_fontDic;
    platform::TextAlignment m_textAlignment = platform::TextAlignment::Left;
    qint64 m_lineCounts = 1;
    qint64 m_oldLineCounts = 1;
    std::vector<TSTokenValue> m_textArray;
    platform::AttributedString m_textStorage;
    QPointF m_scriptOrigin;
    QSizeF m_textSizeOfScript{0, 0};
    QRectF m_limitRectRatio;
};
