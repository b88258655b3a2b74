#pragma once

#include "controls/TSFieldPart.h"
#include "naming/TSTokenValue.h"

#include <QWidget>

class QLabel;
class TSNamePattern;
class TSTokenField;

/// The pattern that names the files: its field, the palette of tokens below it, and the example. What is
/// changed here acts on the pattern at once.
class TSNamePatternView : public QWidget {
    Q_OBJECT

public:
    explicit TSNamePatternView(TSNamePattern &pattern, QWidget *parent = nullptr);

    TSTokenField *tfInput() const { return m_tfInput; }
    void setLabelWidth(int width);
    /// Every photo would get a name that a file can have. The user is told otherwise.
    bool isPossible() const { return m_isPossible; }

Q_SIGNALS:
    void isPossibleChanged(bool isPossible);

private:
    QWidget *newPalette();
    QWidget *newPill(const char *name, const std::shared_ptr<TSToken> &token);
    void controlTextDidChange();
    void insertToken(const TSFieldToken &token);
    void showExample();
    void showRefusal();

    TSNamePattern &m_pattern;
    QList<QLabel *> m_labels;
    TSTokenField *m_tfInput;
    QLabel *m_tfExample;
    QLabel *m_tfRefusal;
    bool m_isPossible = true;
};
