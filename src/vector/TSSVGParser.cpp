#include "vector/TSSVGParser.h"

#include <QFile>

std::unique_ptr<TSSVGParser> TSSVGParser::parserWithSVGDocument(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    return std::make_unique<TSSVGParser>(file.readAll());
}

bool TSSVGParser::parseSVGDocument()
{
    // Names count as they are written, prefix and all.
    m_xmlParser.setNamespaceProcessing(false);
    while (!m_xmlParser.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xmlParser.readNext();
        if (token == QXmlStreamReader::StartElement) {
            TSSVGAttributes attributes;
            for (const QXmlStreamAttribute &attribute : m_xmlParser.attributes())
                attributes.insert(attribute.qualifiedName().toString(), attribute.value().toString());
            startElement(m_xmlParser.qualifiedName().toString(), attributes);
        } else if (token == QXmlStreamReader::EndElement && m_xmlParser.qualifiedName() == u"g") {
            m_pathFactory.removeGroupOpacityValue();
        }
    }
    if (m_xmlParser.hasError())
        qWarning("parserError: %s", qPrintable(m_xmlParser.errorString()));
    return !m_xmlParser.hasError();
}

void TSSVGParser::startElement(const QString &name, const TSSVGAttributes &attributes)
{
    if (name == u"svg") {
        m_viewBox = TSStyledBezierPathFactory::getViewboxFromAttributes(attributes);
        return;
    }
    if (name == u"stop") {
        m_pathFactory.addGradientStopWithAttributes(attributes);
        return;
    }
    if (name == u"g")
        m_pathFactory.addGroupOpacityValueWithAttributes(attributes);
    if (auto path = m_pathFactory.styledPathFromElementName(name, attributes))
        m_paths.push_back(std::move(path));
}
