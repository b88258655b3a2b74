#pragma once

/// A guide line, in points of the overlay space, 32 bits wide. One without length is not valid, so a new one
/// is not.
class TSLine {
public:
    float beginX = 0;
    float beginY = 0;
    float endX = 0;
    float endY = 0;

    bool isValid() const { return beginX != endX || beginY != endY; }
    bool isHorizon() const { return isValid() && beginY == endY; }
    bool isVertical() const { return isValid() && beginX == endX; }
    float minX() const { return beginX < endX ? beginX : endX; }
    float minY() const { return beginY < endY ? beginY : endY; }
    float maxX() const { return beginX < endX ? endX : beginX; }
    float maxY() const { return beginY < endY ? endY : beginY; }
    float centerX() const { return (beginX + endX) * 0.5f; }
    float centerY() const { return (beginY + endY) * 0.5f; }
    bool isEqualToLine(const TSLine &line) const;
    /// Grows to cover a line that lies on the same vertical or horizontal and meets this one. Whether it did.
    bool mergeWithLine(const TSLine &line);
};
