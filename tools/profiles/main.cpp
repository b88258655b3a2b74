#include <cstdio>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>

namespace {

/// Lengths in pixels of the sheet.
constexpr int margin = 28;
constexpr int gap = 6;
constexpr int titleHeight = 24;
constexpr int groupHeight = 46;
constexpr int columns = 2;

/// A profile's name and what it made of each photo, all of one height.
struct Strip {
    QString title;
    std::vector<QImage> pictures;

    int height() const { return pictures.empty() ? 0 : pictures.front().height(); }
    int width() const
    {
        int sum = -gap;
        for (const QImage &picture : pictures)
            sum += picture.width() + gap;
        return sum;
    }
};

struct Group {
    QString title;
    std::vector<Strip> strips;

    int rows() const { return (int(strips.size()) + columns - 1) / columns; }
};

Strip readStrip(const QDir &folder)
{
    Strip strip{folder.dirName(), {}};
    for (const QString &file : folder.entryList(QDir::Files, QDir::Name))
        strip.pictures.emplace_back(folder.filePath(file));
    return strip;
}

Group readGroup(const QDir &folder)
{
    Group group{folder.dirName(), {}};
    for (const QString &name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        group.strips.push_back(readStrip(folder.filePath(name)));
    return group;
}

void drawStrip(QPainter &painter, const Strip &strip, QPoint corner)
{
    painter.drawText(QRect(corner, QSize(strip.width(), titleHeight)), Qt::AlignVCenter, strip.title);
    corner.ry() += titleHeight;
    for (const QImage &picture : strip.pictures) {
        painter.drawImage(corner, picture);
        corner.rx() += picture.width() + gap;
    }
}

QFont fontOfSize(int pixels, QFont::Weight weight)
{
    QFont font(QStringLiteral("Noto Sans"));
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QImage sheetOf(const std::vector<Group> &groups)
{
    const Strip &first = groups.front().strips.front();
    const int rowHeight = titleHeight + first.height() + gap;
    int height = margin;
    for (const Group &group : groups)
        height += groupHeight + group.rows() * rowHeight;
    QImage sheet(columns * (first.width() + margin) + margin, height + margin, QImage::Format_RGB32);
    sheet.fill(QColor(250, 250, 249));
    QPainter painter(&sheet);
    int y = margin;
    for (const Group &group : groups) {
        painter.setPen(QColor(28, 28, 30));
        painter.setFont(fontOfSize(22, QFont::DemiBold));
        painter.drawText(QRect(margin, y, sheet.width(), groupHeight - gap), Qt::AlignVCenter, group.title);
        painter.setPen(QColor(90, 90, 94));
        painter.setFont(fontOfSize(13, QFont::Normal));
        y += groupHeight;
        for (int i = 0; i < int(group.strips.size()); ++i)
            drawStrip(painter, group.strips[size_t(i)],
                      {margin + i % columns * (first.width() + margin), y + i / columns * rowHeight});
        y += group.rows() * rowHeight;
    }
    return sheet;
}

} // namespace

/// Lays the pictures of FOLDER/GROUP/PROFILE/ out on one sheet: make-gallery-sheet SHEET FOLDER GROUP…
int main(int count, char **arguments)
{
    QGuiApplication application(count, arguments);
    const QStringList given = QGuiApplication::arguments();
    std::vector<Group> groups;
    for (const QString &name : given.mid(3))
        groups.push_back(readGroup(QDir(given[2]).filePath(name)));
    const bool isWhole = !groups.empty() && !groups.front().strips.empty();
    if (isWhole && sheetOf(groups).save(given[1]))
        return 0;
    std::fputs("make-gallery-sheet: there is nothing to show, or no place for it\n", stderr);
    return 1;
}
