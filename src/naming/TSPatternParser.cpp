#include "naming/TSPatternParser.h"

#include "naming/TSDateCreatedToken.h"
#include "naming/TSDateModifiedToken.h"
#include "naming/TSDateShootingToken.h"
#include "naming/TSNameToken.h"
#include "naming/TSNumberToken.h"
#include "naming/TSTimeShootingToken.h"

#include <functional>

namespace {

using Token = std::shared_ptr<TSToken>;

/// One placeholder: how its token is made, and which variants it has. An empty variant is the plain
/// placeholder.
struct Placeholder {
    QString name;
    std::function<Token()> make;
    /// False for a variant that there is not.
    std::function<bool(TSToken &, const QString &variant)> choose;
};
using Vocabulary = std::vector<Placeholder>;

bool chooseNothing(TSToken &, const QString &variant)
{
    return variant.isEmpty();
}

bool chooseCase(TSToken &token, const QString &variant)
{
    if (variant == u"lower")
        token.setShowName(token.showName().toLower());
    else if (variant == u"UPPER")
        token.setShowName(token.showName().toUpper());
    else
        return variant.isEmpty();
    return true;
}

/// A width is shown by zeros alone, as in the menu, or with the first number in it.
bool chooseWidth(TSToken &token, const QString &variant)
{
    if (variant.isEmpty())
        return true;
    const qsizetype position = token.tokenMenu().indexOf(variant.chopped(1) + u'0');
    if (position < 0 || !(variant.endsWith(u'0') || variant.endsWith(u'1')))
        return false;
    token.setShowName(QStringLiteral("1").rightJustified(position + 1, u'0'));
    return true;
}

bool chooseFormat(TSToken &token, const QString &variant)
{
    auto &dateToken = dynamic_cast<TSDateTimeToken &>(token);
    if (variant.isEmpty())
        return true;
    const qsizetype position = dateToken.formats().indexOf(variant);
    if (position < 0)
        return false;
    dateToken.setIndex(position);
    dateToken.setShowName(dateToken.dateArray().value(position));
    return true;
}

template <typename T>
std::function<Token()> maker(const QString &name, int usingLocal)
{
    return [name, usingLocal] {
        auto token = std::make_shared<T>();
        token->setName(name);
        token->setUsingLocal(usingLocal);
        return token;
    };
}

const Vocabulary &nameVocabulary()
{
    static const Vocabulary vocabulary{
        {QStringLiteral("Name"), maker<TSNameToken>(QStringLiteral("Name"), 0), chooseCase},
        {QStringLiteral("Number"), maker<TSNumberToken>(QStringLiteral("Number"), 0), chooseWidth},
        {QStringLiteral("Created"), maker<TSDateCreatedToken>(QStringLiteral("Date Created"), 0),
         chooseFormat},
        {QStringLiteral("Modified"), maker<TSDateModifiedToken>(QStringLiteral("Date Modified"), 0),
         chooseFormat},
    };
    return vocabulary;
}

const Vocabulary &wordVocabulary()
{
    static const Vocabulary vocabulary = [] {
        Vocabulary list;
        for (const char16_t *const word :
             {u"NAME", u"COUNTER", u"MODEL", u"EXPOSURE", u"FNUMBER", u"ISO", u"FOCAL"}) {
            const QString name = QString::fromUtf16(word);
            list.push_back({name, maker<TSNameToken>(name, 1), chooseNothing});
        }
        const auto addDate = [&list](const QString &name, auto make) {
            list.push_back({name, make, chooseFormat});
        };
        addDate(QStringLiteral("C_DATE"), maker<TSDateCreatedToken>(QStringLiteral("C_DATE"), 1));
        addDate(QStringLiteral("M_DATE"), maker<TSDateModifiedToken>(QStringLiteral("M_DATE"), 1));
        addDate(QStringLiteral("DATE"), maker<TSDateShootingToken>(QStringLiteral("DATE"), 1));
        addDate(QStringLiteral("TIME"), maker<TSTimeShootingToken>(QStringLiteral("TIME"), 1));
        return list;
    }();
    return vocabulary;
}

/// One walk over a text, from left to right.
class Reader {
public:
    Reader(QStringView text, const Vocabulary &vocabulary) : m_text(text), m_vocabulary(vocabulary) {}

    TSPatternParser::Result read();

private:
    void readBrace();
    void readPlaceholder(const QString &inside);
    void addText(QStringView text);
    void fail(const QString &error) { m_result.error = error; }
    QString knownNames() const;

    QStringView m_text;
    const Vocabulary &m_vocabulary;
    qsizetype m_position = 0;
    TSPatternParser::Result m_result;
};

TSPatternParser::Result Reader::read()
{
    while (m_position < m_text.size() && m_result.error.isEmpty()) {
        qsizetype end = m_position;
        while (end < m_text.size() && m_text[end] != u'{' && m_text[end] != u'}')
            ++end;
        addText(m_text.mid(m_position, end - m_position));
        m_position = end;
        if (m_position < m_text.size())
            readBrace();
    }
    if (!m_result.error.isEmpty())
        m_result.values.clear();
    return m_result;
}

void Reader::readBrace()
{
    const QChar brace = m_text[m_position];
    if (m_position + 1 < m_text.size() && m_text[m_position + 1] == brace) {
        addText(m_text.mid(m_position, 1));
        m_position += 2;
        return;
    }
    if (brace == u'}') {
        fail(QStringLiteral("A \"}\" stands alone. Write \"}}\" for a brace."));
        return;
    }
    const qsizetype end = m_text.indexOf(u'}', m_position);
    if (end < 0) {
        fail(QStringLiteral("A \"{\" is not closed. Write \"{{\" for a brace."));
        return;
    }
    readPlaceholder(m_text.mid(m_position + 1, end - m_position - 1).toString());
    m_position = end + 1;
}

/// Only the first colon sets apart: formats of times hold others.
void Reader::readPlaceholder(const QString &inside)
{
    const QString name = inside.section(u':', 0, 0);
    const QString variant = inside.section(u':', 1);
    for (const Placeholder &placeholder : m_vocabulary) {
        if (placeholder.name != name)
            continue;
        const Token token = placeholder.make();
        if (inside.endsWith(u':') || !placeholder.choose(*token, variant))
            fail(QStringLiteral("{%1} has no variant \"%2\".").arg(name, variant));
        m_result.values.emplace_back(token);
        return;
    }
    fail(QStringLiteral("There is no {%1}. Known are %2.").arg(name, knownNames()));
}

void Reader::addText(QStringView text)
{
    if (text.isEmpty())
        return;
    auto &values = m_result.values;
    if (values.empty() || !std::holds_alternative<QString>(values.back()))
        values.emplace_back(QString());
    std::get<QString>(values.back()) += text;
}

QString Reader::knownNames() const
{
    QStringList names;
    for (const Placeholder &placeholder : m_vocabulary)
        names.append(u'{' + placeholder.name + u'}');
    return names.join(QStringLiteral(", "));
}

} // namespace

TSPatternParser::Result TSPatternParser::namePattern(QStringView text)
{
    return Reader(text, nameVocabulary()).read();
}

TSPatternParser::Result TSPatternParser::words(QStringView text)
{
    return Reader(text, wordVocabulary()).read();
}
