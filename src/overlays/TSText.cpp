#include "overlays/TSText.h"

#include "overlays/TSWildcards.h"
#include "platform/paint/PaintLayer.h"
#include "session/TSDataManager.h"
#include "session/TSImageUtility.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double fontSize = 36;

platform::FontDescription helvetica()
{
    return {QStringLiteral("Helvetica"), {}, fontSize};
}

platform::TextAttributes firstLook()
{
    platform::TextAttributes look;
    look.font = helvetica();
    look.strokeWidth = 0;
    look.strokeColor = platform::Color::white();
    look.foregroundColor = platform::Color::white();
    return look;
}

/// Only the low byte is looked at, so that a few letters whose code ends like a line feed's count as one too.
/// Layouts have been saved with the heights that follow from it.
bool countsAsLineFeed(QChar character)
{
    return (character.unicode() & 0xFF) == u'\n';
}

double fractionOf(double value)
{
    return value - std::floor(value);
}

/// Archives hold any number. Beyond these nothing of a shadow is seen, and it would take time and memory
/// without end.
constexpr double widestBlur = 500;

double withinReach(double distance)
{
    constexpr double farthest = 1e6;
    return std::clamp(distance, -farthest, farthest);
}

} // namespace

TSText::TSText(const QString &string) : m_textStorage(string, firstLook())
{
    const TSDataManager *data = TSDataManager::dataManager();
    m_fontDic = m_textStorage.attributesAt(0);
    m_fontDic.font = helvetica();
    setFrame(QRectF(0, 0, 0.2 * data->canvasFrame.width(), 0.05 * data->canvasFrame.height()));
    updateTextFrame();
    updateRenderTextImage();
    QRectF centred = frame();
    centred.moveTopLeft({(data->previewFrame.width() - centred.width()) * 0.5,
                         (data->previewFrame.height() - centred.height()) * 0.5});
    setFrame(centred);
    m_textArray.push_back(string);
}

TSText::TSText(const TSText &other) = default;

std::shared_ptr<TSOverlay> TSText::copy() const
{
    const std::shared_ptr<TSText> text(new TSText(*this));
    for (TSTokenValue &value : text->m_textArray)
        if (auto *token = std::get_if<std::shared_ptr<TSToken>>(&value))
            *token = (*token)->copy();
    return text;
}

QSizeF TSText::naturalSize() const
{
    // Laying out only fills a memory of the renderer.
    return const_cast<TSTextRenderer &>(m_renderer).naturalSize(m_textStorage);
}

void TSText::updateText(const QString &string)
{
    platform::TextAttributes look = m_fontDic;
    look.alignment = m_textAlignment;
    m_textStorage = platform::AttributedString(string, look);
    m_lineCounts = 1 + std::count_if(string.begin(), string.end(), countsAsLineFeed);
}

void TSText::updateTextString(const TSPhoto &photo, std::vector<TSTokenValue> values, bool isTokenName)
{
    updateText(TSTextForTokenValues(photo, values, isTokenName));
    m_textArray = std::move(values);
}

void TSText::updateTextFrame()
{
    QRectF f = frame();
    const QPointF center = f.center();
    const QSizeF natural = naturalSize();
    if (m_oldLineCounts != m_lineCounts) {
        f.setHeight(double(m_lineCounts) * f.height() / double(m_oldLineCounts));
        f.setWidth(natural.width() * f.height() / natural.height());
        m_oldLineCounts = m_lineCounts;
    } else {
        f.setWidth(natural.width() / natural.height() * f.height());
    }
    if (m_textType != TSTextType::Plain)
        return;
    setFrame(f);
    updateFrameByCenterPoint(center);
}

void TSText::updateTextFrameOfGroup()
{
    const QSizeF natural = naturalSize();
    QRectF f = frame();
    f.setWidth(natural.width() * f.height() / natural.height());
    setFrame(f);
}

void TSText::updateRenderTextImage()
{
    TSTextPicture picture;
    picture.text = m_textStorage;
    picture.look = m_look;
    picture.frameSize = frame().size();
    picture.glyphHeight = frame().height();
    picture.factor = TSScreenScale() == 1.0 ? 1 : 2;
    if (isScript()) {
        const QRectF canvas = TSDataManager::dataManager()->canvasFrame;
        const QSizeF natural = naturalSize();
        const double height = m_tileHeight * canvas.height() / 300;
        const double width = natural.width() * height / natural.height();
        const double gap = (m_tileSpace * canvas.width() / 800 + m_tileSpace * canvas.height() / 800) * 0.5;
        m_textSizeOfScript = QSizeF(width + gap, height + gap);
        picture.frameSize = m_textSizeOfScript;
        picture.glyphHeight = height;
    } else if (angle() == 0) {
        picture.phase =
            QPointF(fractionOf(frame().x() * picture.factor), fractionOf(frame().y() * picture.factor)) /
            picture.factor;
    }
    m_frameSize = picture.frameSize;
    m_renderer.render(picture);
    m_isRendered = true;
}

/// The offset follows the size that the font is seen at; the blur does not.
void TSText::setShadowOn(platform::PaintLayer &context) const
{
    const std::optional<platform::FontDescription> font = m_textStorage.attributesAt(0).font;
    const float pointSize = float(font ? font->size : fontSize);
    const double width = m_textType == TSTextType::Plain ? frame().width()
                         : isScript()                    ? m_textSizeOfScript.width()
                                                         : 0;
    const float reference = float(width / naturalSize().width()) * pointSize;
    const QSizeF offset = shadow()->offsetWithReference(reference);
    // The shadow's own y runs upward.
    context.setShadow({withinReach(offset.width()), withinReach(-offset.height())},
                      std::min(double(shadow()->blur()), widestBlur), shadow()->color());
}

void TSText::drawIncontext(platform::PaintLayer &context)
{
    if (m_textStorage.length() == 0)
        return;
    context.save();
    if (!m_isRendered || m_renderer.image().isNull())
        updateRenderTextImage();
    if (m_isShadowEnable)
        setShadowOn(context);
    const QPointF center = frame().center();
    context.translate(center.x(), center.y());
    context.rotate(angle());
    context.translate(-center.x(), -center.y());
    context.setAlpha(opacity());
    if (m_textType == TSTextType::Plain)
        context.drawImage(m_renderer.placeInFrame(frame()), m_renderer.image());
    else if (isScript())
        drawTiles(context);
    context.restore();
}

/// Unturned and unshifted, a tile begins exactly at the canvas's top left corner, however large the canvas.
void TSText::drawTiles(platform::PaintLayer &context)
{
    const QRectF canvas = TSDataManager::dataManager()->canvasFrame;
    const double side =
        double(float(std::sqrt(canvas.height() * canvas.height() + canvas.width() * canvas.width()))) * 1.2;
    // The square that covers the canvas at any turn stays in the frame until the next rebuild.
    setFrame(QRectF(canvas.center().x() - side / 2, canvas.center().y() - side / 2, side, side));
    const QSizeF &cell = m_frameSize;
    const double ny = (side - canvas.height()) / (2 * cell.height());
    const double nx = (side - canvas.width()) / (2 * cell.width());
    const double oy = (std::floor(1 + ny) - ny) * cell.height();
    const double ox = (std::ceil(std::floor(1 + nx)) - nx) * cell.width();
    const QPointF origin(m_scriptOrigin.x() * m_textSizeOfScript.width() + (frame().x() - ox),
                         m_scriptOrigin.y() * m_textSizeOfScript.height() + (frame().y() - oy));
    context.drawTiledImage(QRectF(origin, cell), m_renderer.pictureSize(), m_renderer.image());
}
