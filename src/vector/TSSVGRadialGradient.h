#pragma once

#include "vector/TSSVGGradient.h"

class TSSVGRadialGradient : public TSSVGGradient {
public:
    QPointF position;
    double radius = 0;

protected:
    QGradient geometry() const override { return QRadialGradient(position, radius); }
};
