#pragma once

#include "controls/TSFieldPart.h"

#include <QMimeData>

/// Parts on their way between fields of this program. Other programs get them as text; nothing of a token is
/// written out.
class TSTokenMimeData : public QMimeData {
    Q_OBJECT

public:
    explicit TSTokenMimeData(TSFieldParts parts);

    const TSFieldParts &parts() const { return m_parts; }
    static QString displayText(const TSFieldParts &parts);

private:
    TSFieldParts m_parts;
};
