#include "platform/image/ThumbnailCache.h"
#include "support/Folder.h"
#include "support/Pictures.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

TEST(ThumbnailCache, AnswersWhatIsAsNewAsTheFileAndLargeEnough)
{
    const Folder folder;
    const QString photo = folder.write("a photo.jpg", "pixels");
    const QByteArray address = "file://" + photo.toUtf8().toPercentEncoding("/");
    const QString name =
        QString::fromLatin1(QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex());
    const QString cache =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/thumbnails/";
    const qint64 changed = QFileInfo(photo).lastModified().toSecsSinceEpoch();
    const std::tuple<const char *, qint64, int, int> cases[] = {{"normal", changed, 100, 90},
                                                                {"normal", changed, 200, 0},
                                                                {"large", changed, 200, 90},
                                                                {"large", changed - 1, 200, 0},
                                                                {"x-large", changed, 300, 90}};
    for (const auto &[size, time, asked, found] : cases) {
        const QString path = cache + QLatin1String(size);
        ASSERT_TRUE(QDir().mkpath(path));
        QImage picture = plainImage({90, 60});
        picture.setText("Thumb::MTime", QString::number(time));
        ASSERT_TRUE(picture.save(path + u'/' + name + ".png"));
        EXPECT_EQ(platform::cachedThumbnail(photo, asked).width(), found) << size << asked;
        QDir(cache).removeRecursively();
    }
}
