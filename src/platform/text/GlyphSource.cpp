#include "platform/text/GlyphSource.h"

#include <array>
#include <hb-ot.h>

namespace platform {

namespace {

constexpr std::array<const char *, 18> neededTables = {"head", "maxp", "hhea", "hmtx", "OS/2", "cmap",
                                                       "GDEF", "GSUB", "GPOS", "kern", "glyf", "loca",
                                                       "CFF ", "post", "CBDT", "CBLC", "sbix", "VORG"};

hb_blob_t *blobOf(const QByteArray &bytes)
{
    return hb_blob_create(bytes.constData(), unsigned(bytes.size()), HB_MEMORY_MODE_READONLY, nullptr,
                          nullptr);
}

hb_blob_t *tableOf(hb_face_t *, hb_tag_t tag, void *tables)
{
    return blobOf(static_cast<const QHash<quint32, QByteArray> *>(tables)->value(tag));
}

bool hasPositioning(hb_face_t *face, hb_tag_t feature)
{
    const hb_tag_t features[] = {feature, HB_TAG_NONE};
    hb_set_t *lookups = hb_set_create();
    hb_ot_layout_collect_lookups(face, HB_OT_TAG_GPOS, nullptr, nullptr, features, lookups);
    const bool isThere = !hb_set_is_empty(lookups);
    hb_set_destroy(lookups);
    return isThere;
}

} // namespace

/// Reading a font anew takes time, and one with pictures ten megabytes. Its head holds a sum over the whole
/// file, which tells it from others.
std::shared_ptr<GlyphSource> GlyphSource::of(const QRawFont &font)
{
    thread_local QHash<QByteArray, std::shared_ptr<GlyphSource>> known;
    const QByteArray head = font.fontTable("head");
    if (head.isEmpty())
        return nullptr;
    std::shared_ptr<GlyphSource> &source = known[head];
    if (!source)
        source.reset(new GlyphSource(font));
    return source;
}

GlyphSource::GlyphSource(const QRawFont &font)
    : m_face(nullptr, hb_face_destroy), m_font(nullptr, hb_font_destroy)
{
    for (const char *name : neededTables)
        m_tables.insert(hb_tag_from_string(name, 4), font.fontTable(name));
    m_face.reset(hb_face_create_for_tables(tableOf, &m_tables, nullptr));
    m_font.reset(hb_font_create(m_face.get()));
    m_hasColorPictures = hb_ot_color_has_png(m_face.get());
    m_hasCursiveAttachment = hasPositioning(m_face.get(), HB_TAG('c', 'u', 'r', 's'));
}

GlyphSource::~GlyphSource() = default;

QImage GlyphSource::picture(quint32 glyph) const
{
    hb_blob_t *blob = hb_ot_color_glyph_reference_png(m_font.get(), glyph);
    unsigned length = 0;
    const char *bytes = hb_blob_get_data(blob, &length);
    const QImage image = QImage::fromData(reinterpret_cast<const uchar *>(bytes), int(length), "PNG");
    hb_blob_destroy(blob);
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

GlyphSource::Shaped GlyphSource::shape(const QString &text, qsizetype from, qsizetype to, bool isRightToLeft,
                                       double size) const
{
    // Finer than the units of any font.
    constexpr int steps = 1024;
    hb_font_set_scale(m_font.get(), int(size * steps), int(size * steps));
    hb_buffer_t *buffer = hb_buffer_create();
    hb_buffer_add_utf16(buffer, text.utf16(), int(text.size()), unsigned(from), int(to - from));
    hb_buffer_set_direction(buffer, isRightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_guess_segment_properties(buffer);
    hb_shape(m_font.get(), buffer, nullptr, 0);
    unsigned count = 0;
    const hb_glyph_info_t *glyphs = hb_buffer_get_glyph_infos(buffer, &count);
    const hb_glyph_position_t *places = hb_buffer_get_glyph_positions(buffer, &count);
    Shaped shaped;
    for (unsigned i = 0; i < count; ++i) {
        shaped.glyphs.push_back(
            {glyphs[i].codepoint, QPointF(shaped.width + double(places[i].x_offset) / steps,
                                          -double(places[i].y_offset) / steps)});
        shaped.width += double(places[i].x_advance) / steps;
    }
    hb_buffer_destroy(buffer);
    return shaped;
}

} // namespace platform
