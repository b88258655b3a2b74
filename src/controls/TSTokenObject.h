#pragma once

#include "controls/TSFieldPart.h"

#include <QTextFormat>
#include <QTextObjectInterface>

class QTextEdit;

/// Keeps room for tokens within the text of one field. The field paints them itself, over the text: the
/// layout would lay its selection across their shape.
class TSTokenObject : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int type = QTextFormat::UserObject + 1;

    explicit TSTokenObject(QTextEdit *field);

    static QTextCharFormat format(const TSFieldToken &token);
    static bool isToken(const QTextFormat &format) { return format.objectType() == type; }
    static TSFieldToken token(const QTextFormat &format);

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *, const QRectF &, QTextDocument *, int, const QTextFormat &) override {}

private:
    QTextEdit *m_field;
};
