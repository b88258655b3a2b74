#pragma once

#include <memory>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <vector>

struct hb_face_t;
struct hb_font_t;

namespace platform {

/// A font as its file describes it, where the toolkit's own reading is not enough: pictures of colour glyphs,
/// and words whose glyphs hang on each other. It holds copies of what it needs of the font and owes nothing
/// to the toolkit. One object serves one thread.
class GlyphSource {
public:
    /// A glyph at its place on a line that begins at (0, 0), in the units of the font size, y downward.
    struct Placed {
        quint32 glyph = 0;
        QPointF position;
    };
    struct Shaped {
        std::vector<Placed> glyphs;
        double width = 0;
    };

    /// Nothing for the boxes that stand where no font has the letter, which have no tables.
    static std::shared_ptr<GlyphSource> of(const QRawFont &font);
    ~GlyphSource();
    GlyphSource(const GlyphSource &) = delete;
    GlyphSource &operator=(const GlyphSource &) = delete;

    /// Glyphs are ready-made pictures, with no outlines to scale or to trace.
    bool hasColorPictures() const { return m_hasColorPictures; }
    /// Glyphs are joined one to the next at heights of their own, as in the hanging styles of Arabic.
    bool hasCursiveAttachment() const { return m_hasCursiveAttachment; }

    /// The picture of a glyph at the size it was made for; null when it has none.
    QImage picture(quint32 glyph) const;
    /// A part of a text, shaped as a part of the whole.
    Shaped shape(const QString &text, qsizetype from, qsizetype to, bool isRightToLeft, double size) const;

private:
    explicit GlyphSource(const QRawFont &font);

    /// What the font's file is asked for piece by piece; the bytes lie where they are as long as this does.
    QHash<quint32, QByteArray> m_tables;
    std::unique_ptr<hb_face_t, void (*)(hb_face_t *)> m_face;
    std::unique_ptr<hb_font_t, void (*)(hb_font_t *)> m_font;
    bool m_hasColorPictures = false;
    bool m_hasCursiveAttachment = false;
};

} // namespace platform
