#pragma once

#include "vector/TSScanner.h"

#include <QPainterPath>
#include <QStringList>
#include <vector>

/// Builds outlines from path data and lists of points. It reads one set of arguments for each command, knows
/// no arcs, and draws quadratic curves with both control points on one; documents made for it are drawn to
/// the letter. Pure but for the last control point, which goes on from path to path.
class TSBezierPathBuilder {
public:
    /// One string for each command, its letter first.
    static QStringList commandListForCommandString(const QString &data);
    /// Points set apart by single blanks, each an "x,y".
    static QStringList commandListForPolylineString(const QString &points);
    /// A piece that ends before its numbers do is left out of path data; in a list of points it counts as (0,
    /// 0).
    QPainterPath bezierPathFromCommandList(const QStringList &commands, bool takesShortPieces);
    /// The points of the last path at which a part of it begins and ends, and which it does not hold: nothing
    /// is filled there, but a pen may have caps.
    const std::vector<QPointF> &dots() const { return m_dots; }

private:
    struct Piece {
        TSScanner scanner;
        bool isRelative = false;
        bool hasEnded = false;
    };

    void addCommand(const QString &command);
    QPointF point(Piece &piece) const;
    double number(Piece &piece) const;
    bool isComplete(const Piece &piece) const { return !piece.hasEnded || m_takesShortPieces; }
    void addLine(const Piece &piece, const QPointF &end);
    void addCurve(const Piece &piece, const QPointF &c1, const QPointF &c2, const QPointF &end);
    void noteStep(bool hasLength);
    void closePart();
    void endPart();
    void addCubic(Piece &piece);
    void addSmoothCubic(Piece &piece);
    void addQuadratic(Piece &piece);

    QPainterPath m_path;
    QPointF m_previousControlPoint;
    std::vector<QPointF> m_dots;
    bool m_hasBegun = false;
    /// Of the part of the path that is being drawn.
    bool m_hasSteps = false;
    bool m_hasLength = false;
    bool m_takesShortPieces = false;
};
