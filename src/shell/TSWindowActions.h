#pragma once

#include <QObject>

class QAction;
class TSMainWindow;
class TSPreview;

/// What the menus do to the marks and to the view, and which of all actions can be used at the moment. The
/// window outlives it. Main thread.
class TSWindowActions : public QObject {
    Q_OBJECT

public:
    explicit TSWindowActions(TSMainWindow &window) : m_window(window) {}

    void bind();
    void validate();

private:
    TSPreview &preview();
    void bindMarks();
    void bindView();
    void bindSnapping(QAction *action, const char *key);
    void auxiliaryLine();
    void updateAuxiliaryLineTitle();
    void validateSelection();

    TSMainWindow &m_window;
};
