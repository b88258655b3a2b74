#include "vector/TSBezierPathBuilder.h"

#include <cmath>

namespace {

bool isCommandLetter(QChar character)
{
    return QStringView(u"MmLlCcVvHhAaSsQqTtZz").contains(character);
}

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// Reads two numbers, stepping over one character before each: the letter of the command, then separators.
/// Nothing is read unless both are.
QPointF scanPoint(TSScanner &scanner, bool &hasEnded)
{
    float x = 0;
    float y = 0;
    if (!scanner.conditionallyIncrement()) {
        hasEnded = true;
        return {};
    }
    const bool hasX = scanner.scanFloat(&x);
    if (!scanner.conditionallyIncrement()) {
        hasEnded = true;
        return {};
    }
    const bool hasY = scanner.scanFloat(&y);
    return hasX && hasY ? QPointF(double(x), double(y)) : QPointF();
}

} // namespace

QStringList TSBezierPathBuilder::commandListForCommandString(const QString &data)
{
    QStringList pieces;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= data.size(); ++i) {
        if (i < data.size() && !isCommandLetter(data[i]))
            continue;
        if (i > start)
            pieces.append(data.mid(start, i - start));
        start = i;
    }
    return pieces;
}

QStringList TSBezierPathBuilder::commandListForPolylineString(const QString &points)
{
    QStringList pieces;
    for (const QString &piece : points.split(u' ', Qt::SkipEmptyParts))
        pieces.append((pieces.isEmpty() ? u'M' : u'L') + piece);
    return pieces;
}

QPainterPath TSBezierPathBuilder::bezierPathFromCommandList(const QStringList &commands,
                                                            bool takesShortPieces)
{
    m_path = QPainterPath();
    m_path.setFillRule(Qt::WindingFill);
    m_hasBegun = false;
    m_takesShortPieces = takesShortPieces;
    m_hasSteps = m_hasLength = false;
    m_dots.clear();
    for (const QString &command : commands)
        addCommand(command);
    endPart();
    return m_path;
}

void TSBezierPathBuilder::addCommand(const QString &command)
{
    Piece piece{TSScanner(command), command.front().isLower(), false};
    switch (command.front().toUpper().unicode()) {
    case u'M': {
        const QPointF target = point(piece);
        if (isComplete(piece) && isFinite(target)) {
            endPart();
            m_path.moveTo(target);
            m_hasBegun = true;
        }
        break;
    }
    case u'L':
        addLine(piece, point(piece));
        break;
    case u'H': {
        const QPointF from = m_path.currentPosition();
        const double x = number(piece);
        addLine(piece, {piece.isRelative ? from.x() + x : x, from.y()});
        break;
    }
    case u'V': {
        const QPointF from = m_path.currentPosition();
        const double y = number(piece);
        addLine(piece, {from.x(), piece.isRelative ? from.y() + y : y});
        break;
    }
    case u'C':
        addCubic(piece);
        break;
    case u'S':
        addSmoothCubic(piece);
        break;
    case u'Q':
        addQuadratic(piece);
        break;
    case u'Z':
        closePart();
        break;
    default:
        break;
    }
}

/// Of an empty path the current point is (0, 0).
QPointF TSBezierPathBuilder::point(Piece &piece) const
{
    const QPointF read = scanPoint(piece.scanner, piece.hasEnded);
    return piece.isRelative ? read + m_path.currentPosition() : read;
}

double TSBezierPathBuilder::number(Piece &piece) const
{
    float value = 0;
    if (!piece.scanner.conditionallyIncrement() || piece.scanner.isAtEnd())
        piece.hasEnded = true;
    else
        piece.scanner.scanFloat(&value);
    return double(value);
}

/// A line or a curve without a point to begin at has no place on the platform, and none here.
void TSBezierPathBuilder::addLine(const Piece &piece, const QPointF &end)
{
    if (!isComplete(piece) || !m_hasBegun || !isFinite(end))
        return;
    noteStep(end != m_path.currentPosition());
    m_path.lineTo(end);
}

void TSBezierPathBuilder::addCurve(const Piece &piece, const QPointF &c1, const QPointF &c2,
                                   const QPointF &end)
{
    if (!isComplete(piece) || !m_hasBegun || !isFinite(c1) || !isFinite(c2) || !isFinite(end))
        return;
    const QPointF from = m_path.currentPosition();
    noteStep(c1 != from || c2 != from || end != from);
    m_path.cubicTo(c1, c2, end);
}

void TSBezierPathBuilder::closePart()
{
    if (!m_hasBegun)
        return;
    noteStep(false);
    endPart();
    m_path.closeSubpath();
}

void TSBezierPathBuilder::noteStep(bool hasLength)
{
    m_hasSteps = true;
    m_hasLength = m_hasLength || hasLength;
}

void TSBezierPathBuilder::endPart()
{
    if (m_hasSteps && !m_hasLength)
        m_dots.push_back(m_path.currentPosition());
    m_hasSteps = m_hasLength = false;
}

void TSBezierPathBuilder::addCubic(Piece &piece)
{
    const QPointF c1 = point(piece);
    const QPointF c2 = point(piece);
    const QPointF end = point(piece);
    if (isComplete(piece))
        m_previousControlPoint = c2;
    addCurve(piece, c1, c2, end);
}

/// The control point before is that of the last cubic curve, whatever has been drawn since, and (0, 0) ahead
/// of the first.
void TSBezierPathBuilder::addSmoothCubic(Piece &piece)
{
    const QPointF current = m_path.currentPosition();
    const QPointF c1 = current + (current - m_previousControlPoint);
    const QPointF c2 = point(piece);
    const QPointF end = point(piece);
    if (isComplete(piece))
        m_previousControlPoint = c2;
    addCurve(piece, c1, c2, end);
}

/// Both control points on the one, and not the exact cubic: documents have been drawn with this curve from
/// the start.
void TSBezierPathBuilder::addQuadratic(Piece &piece)
{
    const QPointF control = point(piece);
    const QPointF end = point(piece);
    addCurve(piece, control, control, end);
}
