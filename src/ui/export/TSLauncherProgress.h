#pragma once

/// How far a run is, for docks and task bars that show it on the program's picture. Without a session bus
/// nothing happens. Main thread.
class TSLauncherProgress {
public:
    ~TSLauncherProgress() { hide(); }

    /// From 0 to 1.
    void show(double progress);
    void hide();

private:
    bool m_isShown = false;
};
