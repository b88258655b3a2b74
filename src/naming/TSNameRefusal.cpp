#include "naming/TSNameRefusal.h"

#include <algorithm>
#include <QCoreApplication>

namespace {

constexpr qsizetype longestShown = 40;

bool isImpossible(QChar character)
{
    return character == u'/' || character.isNull();
}

} // namespace

QString TSNameRefusal(const QStringList &names)
{
    for (const QString &name : names) {
        if (std::none_of(name.begin(), name.end(), isImpossible))
            continue;
        QString shown = name.size() > longestShown ? name.left(longestShown) + u'…' : name;
        shown.replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter));
        return name.contains(u'/')
                   ? qtTrId("“%1” has a slash in it, which no file name can have.").arg(shown)
                   : qtTrId("“%1” has a character in it that no file name can have.").arg(shown);
    }
    return {};
}
