#pragma once

/// Angles of rotation, in radians.

/// Where (x1, y1) lies as seen from (x2, y2): 0 straight down, growing by way of the right, up and the left.
/// Results within the tolerance of a quarter become that quarter. The steps are 32 bits wide.
double TSAngleOfPoint(double x1, double y1, double x2, double y2, double tolerance);
/// 0 to 2π for an angle that is at most one turn outside.
double TSWrappedAngle(double angle);
/// The eighth of a turn that lies within 0.1 of an angle of 0 to 2π, or else the angle itself.
double TSSnappedAngle(double angle);
