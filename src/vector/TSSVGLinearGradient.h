#pragma once

#include "vector/TSSVGGradient.h"

class TSSVGLinearGradient : public TSSVGGradient {
public:
    QPointF startPosition;
    QPointF endPosition;

protected:
    QGradient geometry() const override { return QLinearGradient(startPosition, endPosition); }
};
