#pragma once

/// The shapes of the pointer over the preview. The last three are pictures of the program's own.
enum class TSCursor {
    arrowCursor,
    openHandCursor,
    closedHandCursor,
    resizeUpDownCursor,
    resizeLeftRightCursor,
    tl2brCursor,
    tl2blCursor,
    rotateCursor,
};
