#pragma once

#include "platform/drawing/Drawing.h"

#include <memory>
#include <QByteArray>

namespace platform {

/// The first page of a PDF document, or of an Illustrator file, which holds one.
class PdfDrawing : public Drawing {
public:
    /// Nothing when there is no page that can be drawn.
    static std::unique_ptr<PdfDrawing> fromData(const QByteArray &document);

    QSizeF size() const override { return m_size; }
    QImage imageOfSize(const QSize &pixels) const override;

private:
    PdfDrawing(const QByteArray &document, const QSizeF &size) : m_document(document), m_size(size) {}

    QByteArray m_document;
    QSizeF m_size;
};

} // namespace platform
