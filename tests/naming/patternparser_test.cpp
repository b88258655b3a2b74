#include "naming/TSDateTimeToken.h"
#include "naming/TSPatternParser.h"
#include "session/TSNotificationCenter.h"

#include <gtest/gtest.h>

namespace {

/// The elements as text: "'literal'", or class, name, variant shown, and for dates the index.
QString described(const TSPatternParser::Result &result)
{
    if (!result.error.isEmpty())
        return QStringLiteral("! ") + result.error;
    QStringList parts;
    for (const TSTokenValue &value : result.values) {
        if (const auto *text = std::get_if<QString>(&value)) {
            parts += u'\'' + *text + u'\'';
            continue;
        }
        const TSToken &token = *std::get<std::shared_ptr<TSToken>>(value);
        const auto *date = dynamic_cast<const TSDateTimeToken *>(&token);
        if (date) {
            EXPECT_EQ(date->showName(), date->dateArray().value(date->index()));
        }
        parts += QStringLiteral("%1 %2 %3")
                     .arg(token.classChain().first(), token.name(),
                          date ? QString::number(date->index()) : token.showName());
        parts.last() += token.usingLocal() ? QStringLiteral(" in text") : QString();
    }
    return parts.join(", ");
}

} // namespace

TEST(PatternParser, ReadsNamePatterns)
{
    TSNotificationCenter center;
    QObject::connect(&center, &TSNotificationCenter::TSExampleTextChange,
                     [] { FAIL() << "reading tells nobody"; });
    const std::pair<const char16_t *, const char16_t *> cases[] = {
        {u"", u""},
        {u"plain", u"'plain'"},
        {u"{Name}_{Number:001}", u"TSNameToken Name Name, '_', TSNumberToken Number 001"},
        {u"{Name:lower}{Name:UPPER}", u"TSNameToken Name name, TSNameToken Name NAME"},
        {u"{Number}{Number:0}{Number:00}{Number:0000}{Number:01}",
         u"TSNumberToken Number 1, TSNumberToken Number 1, TSNumberToken Number 01, TSNumberToken Number "
         u"0001, "
         u"TSNumberToken Number 01"},
        {u"{Created}-{Modified:MM/dd/yyyy}",
         u"TSDateCreatedToken Date Created 0, '-', TSDateModifiedToken Date Modified 3"},
        {u"a{{b}}{{{Name}}}c", u"'a{b}{', TSNameToken Name Name, '}c'"},
        {u"{Name", u"! A \"{\" is not closed. Write \"{{\" for a brace."},
        {u"{Name}}", u"! A \"}\" stands alone. Write \"}}\" for a brace."},
        {u"{NAME}", u"! There is no {NAME}. Known are {Name}, {Number}, {Created}, {Modified}."},
        {u"x{Name:Upper}", u"! {Name} has no variant \"Upper\"."},
        {u"{Number:11}", u"! {Number} has no variant \"11\"."},
        {u"{Created:HH}", u"! {Created} has no variant \"HH\"."},
    };
    for (const auto &[text, description] : cases)
        EXPECT_EQ(described(TSPatternParser::namePattern(text)), QString::fromUtf16(description));
}

TEST(PatternParser, ReadsWords)
{
    const std::pair<const char16_t *, const char16_t *> cases[] = {
        {u"© {NAME} {COUNTER}",
         u"'© ', TSNameToken NAME Name in text, ' ', TSNameToken COUNTER Name in text"},
        {u"{C_DATE:MM-dd-yyyy}{M_DATE}{DATE:MM dd}",
         u"TSDateCreatedToken C_DATE 2 in text, TSDateModifiedToken M_DATE 0 in text, TSDateShootingToken "
         u"DATE 1 in text"},
        {u"{TIME}{TIME:HH:mm:ss}{TIME:HH/mm/ss}", u"TSTimeShootingToken TIME 0 in text, TSTimeShootingToken "
                                                  u"TIME 0 in text, TSTimeShootingToken TIME 3 in text"},
        {u"{ISO:4}", u"! {ISO} has no variant \"4\"."},
        {u"{TIME:}", u"! {TIME} has no variant \"\"."},
        {u"{Name}", u"! There is no {Name}. Known are {NAME}, {COUNTER}, {MODEL}, {EXPOSURE}, {FNUMBER}, "
                    u"{ISO}, {FOCAL}, "
                    u"{C_DATE}, {M_DATE}, {DATE}, {TIME}."},
    };
    for (const auto &[text, description] : cases)
        EXPECT_EQ(described(TSPatternParser::words(text)), QString::fromUtf16(description));
}
