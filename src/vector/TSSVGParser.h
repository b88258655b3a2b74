#pragma once

#include "vector/TSStyledBezierPathFactory.h"

#include <QByteArray>
#include <QXmlStreamReader>

/// Reads the drawings that simple tools write: plain shapes and paths with their attributes, and gradients.
/// What it does not know it skips, and what is wrong ends the reading where it is, with the shapes found so
/// far. It opens nothing that a document refers to. One document, one thread.
class TSSVGParser {
public:
    /// Nothing when the file cannot be read.
    static std::unique_ptr<TSSVGParser> parserWithSVGDocument(const QString &path);
    explicit TSSVGParser(const QByteArray &data) : m_xmlParser(data) {}

    /// Whether the document is whole. An error goes to the log.
    bool parseSVGDocument();

    const std::vector<std::shared_ptr<TSStyledBezierPath>> &paths() const { return m_paths; }
    const QRectF &viewBox() const { return m_viewBox; }

private:
    void startElement(const QString &name, const TSSVGAttributes &attributes);

    std::vector<std::shared_ptr<TSStyledBezierPath>> m_paths;
    QXmlStreamReader m_xmlParser;
    TSStyledBezierPathFactory m_pathFactory;
    QRectF m_viewBox;
};
