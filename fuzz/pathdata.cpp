#include "Target.h"
#include "vector/TSBezierPathBuilder.h"

#include <cmath>

/// The first byte tells path data from a list of points.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const bool isPointList = data[0] & 1;
    const QString text = QString::fromUtf8(bytesOf(data + 1, size - 1));
    const QStringList commands = isPointList ? TSBezierPathBuilder::commandListForPolylineString(text)
                                             : TSBezierPathBuilder::commandListForCommandString(text);
    const QPainterPath path = TSBezierPathBuilder().bezierPathFromCommandList(commands, isPointList);
    for (int i = 0; i < path.elementCount(); ++i)
        require(std::isfinite(path.elementAt(i).x) && std::isfinite(path.elementAt(i).y));
    return 0;
}
