#include "platform/text/FontChoice.h"

#include <array>
#include <QFontDatabase>
#include <QRawFont>
#include <QSet>

namespace platform {

namespace {

struct Replacement {
    QStringView family;
    QStringView installed;
};

/// Families that documents name everywhere, some by the one word that archives know them by, with free ones
/// of the same widths.
constexpr std::array<Replacement, 13> replacements = {{{u"Helvetica", u"Liberation Sans"},
                                                       {u"Helvetica Neue", u"Liberation Sans"},
                                                       {u"HelveticaNeue", u"Liberation Sans"},
                                                       {u"ArialMT", u"Liberation Sans"},
                                                       {u"TimesNewRomanPS", u"Liberation Serif"},
                                                       {u"TimesNewRomanPSMT", u"Liberation Serif"},
                                                       {u"CourierNewPS", u"Liberation Mono"},
                                                       {u"CourierNewPSMT", u"Liberation Mono"},
                                                       {u"Arial", u"Liberation Sans"},
                                                       {u"Times", u"Liberation Serif"},
                                                       {u"Times New Roman", u"Liberation Serif"},
                                                       {u"Courier", u"Liberation Mono"},
                                                       {u"Courier New", u"Liberation Mono"}}};

const QString emojiFamily = QStringLiteral("Noto Color Emoji");

const QSet<QString> &installedFamilies()
{
    static const QSet<QString> families = [] {
        QSet<QString> names;
        // A family that several foundries make is listed with theirs in brackets.
        for (const QString &family : QFontDatabase::families())
            names.insert(family.section(QStringLiteral(" ["), 0, 0));
        return names;
    }();
    return families;
}

QString resolvedFamily(const QString &family)
{
    for (const Replacement &entry : replacements)
        if (entry.family == family && installedFamilies().contains(entry.installed.toString()))
            return entry.installed.toString();
    return family;
}

QFont::Weight weightOf(const QString &style)
{
    struct Entry {
        const char *word;
        QFont::Weight weight;
    };
    // The compound words stand before the plain ones that they contain.
    static constexpr std::array<Entry, 11> table = {{{"extralight", QFont::ExtraLight},
                                                     {"ultralight", QFont::ExtraLight},
                                                     {"extrabold", QFont::ExtraBold},
                                                     {"ultrabold", QFont::ExtraBold},
                                                     {"semibold", QFont::DemiBold},
                                                     {"demibold", QFont::DemiBold},
                                                     {"thin", QFont::Thin},
                                                     {"light", QFont::Light},
                                                     {"medium", QFont::Medium},
                                                     {"black", QFont::Black},
                                                     {"bold", QFont::Bold}}};
    const QString words = style.toLower().remove(u' ');
    for (const Entry &entry : table)
        if (words.contains(QLatin1String(entry.word)))
            return entry.weight;
    return QFont::Normal;
}

bool isSlanted(const QString &style)
{
    return style.contains(u"italic", Qt::CaseInsensitive) || style.contains(u"oblique", Qt::CaseInsensitive);
}

} // namespace

QFont fontFor(const FontDescription &description)
{
    const QString family = resolvedFamily(description.family);
    QFont font;
    // Behind the wanted family stand one of wide coverage and one of colour emoji; the system knows the rest.
    font.setFamilies({family, QStringLiteral("Noto Sans"), emojiFamily});
    font.setPixelSize(std::max(1, qRound(description.size)));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setWeight(weightOf(description.style));
    font.setItalic(isSlanted(description.style));
    if (!description.style.isEmpty() && QFontDatabase::styles(family).contains(description.style))
        font.setStyleName(description.style);
    return font;
}

bool hasAnyFont()
{
    // The names that stand for any font are listed all the same; a stand-in for one has no tables.
    return !QRawFont::fromFont(fontFor({})).fontTable("head").isEmpty();
}

QFont inEmojiFont(QFont font)
{
    QStringList families = font.families();
    families.prepend(emojiFamily);
    font.setFamilies(families);
    return font;
}

bool hasEmojiFont()
{
    return installedFamilies().contains(emojiFamily);
}

bool isFontFamilyAvailable(const QString &family)
{
    return installedFamilies().contains(resolvedFamily(family));
}

} // namespace platform
