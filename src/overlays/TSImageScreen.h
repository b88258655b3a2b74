#pragma once

/// While one lives, its thread draws pictures for a screen that has `pixelsPerUnit` pixels to a unit of
/// overlay space, and keeps them for the next time they are shown. Without one a picture has a pixel a unit,
/// as in a file, whatever screen there is.
class TSImageScreen {
public:
    explicit TSImageScreen(double pixelsPerUnit) : m_pixelsPerUnit(pixelsPerUnit), m_outer(s_current)
    {
        s_current = this;
    }
    ~TSImageScreen() { s_current = m_outer; }
    TSImageScreen(const TSImageScreen &) = delete;
    TSImageScreen &operator=(const TSImageScreen &) = delete;

    /// The innermost one of this thread, or nothing.
    static const TSImageScreen *current() { return s_current; }
    double pixelsPerUnit() const { return m_pixelsPerUnit; }

private:
    static thread_local const TSImageScreen *s_current;

    double m_pixelsPerUnit;
    const TSImageScreen *m_outer;
};
