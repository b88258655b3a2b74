#include "controls/TSTokenObject.h"

#include "controls/TSTokenPainter.h"

#include <QFontMetricsF>
#include <QTextEdit>

namespace {

constexpr int tokenProperty = QTextFormat::UserProperty + 1;

} // namespace

TSTokenObject::TSTokenObject(QTextEdit *field) : QObject(field), m_field(field) {}

QTextCharFormat TSTokenObject::format(const TSFieldToken &token)
{
    QTextCharFormat format;
    format.setObjectType(type);
    format.setProperty(tokenProperty, QVariant::fromValue(token));
    return format;
}

TSFieldToken TSTokenObject::token(const QTextFormat &format)
{
    return format.property(tokenProperty).value<TSFieldToken>();
}

QSizeF TSTokenObject::intrinsicSize(QTextDocument *, int, const QTextFormat &format)
{
    const TSFieldToken token = TSTokenObject::token(format);
    const TSTokenPainter::Look look{token.title, m_field->font(), m_field->palette(), !token.menu.isEmpty()};
    // Objects stand on the base line; one as high as the letters leaves the line as it is.
    return {TSTokenPainter::size(look).width(), QFontMetricsF(m_field->font()).ascent()};
}
