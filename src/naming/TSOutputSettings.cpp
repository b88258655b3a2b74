#include "naming/TSOutputSettings.h"

#include "platform/system/UserDefaults.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"

#include <algorithm>

namespace {

struct Format {
    const char16_t *title;
    const char16_t *extension;
    unsigned type;
};

constexpr std::array<Format, 4> kFormats{{{u"JPG", u"jpg", TSFileType::JPG},
                                          {u"PNG", u"png", TSFileType::PNG},
                                          {u"BMP", u"bmp", TSFileType::BMP},
                                          {u"TIFF", u"tiff", TSFileType::TIFF}}};

struct Size {
    const char16_t *key;
    int top;
    double TSDataManager::*field;
};

constexpr std::array<Size, 5> kSizes{{{u"ByWidth", 9999, &TSDataManager::outputWidth},
                                      {u"ByHeight", 9999, &TSDataManager::outputHeight},
                                      {u"ByPercentage", 1000, &TSDataManager::percentage},
                                      {u"FitSizeWidth", 9999, &TSDataManager::outputWidth},
                                      {u"FitSizeHeight", 9999, &TSDataManager::outputHeight}}};

constexpr int kTopQuality = 100;
constexpr int kFirstQuality = 85;
const QString kExportFormat = QStringLiteral("ExportFormat");
const QString kResizeStyle = QStringLiteral("ResizeStyle");

constexpr const Size &row(TSSizeField field)
{
    return kSizes[size_t(field)];
}

/// The sizes that a way of resizing takes from their steppers.
std::vector<TSSizeField> sizesOfWay(qint64 way)
{
    switch (way) {
    case TSResizeWay::ByWidth:
        return {TSSizeField::ByWidth};
    case TSResizeWay::ByHeight:
        return {TSSizeField::ByHeight};
    case TSResizeWay::ByPercentage:
        return {TSSizeField::ByPercentage};
    case TSResizeWay::FitSize:
        return {TSSizeField::FitSizeWidth, TSSizeField::FitSizeHeight};
    default:
        return {};
    }
}

qint64 knownIndex(qint64 index, const QStringList &titles)
{
    return index >= 0 && index < titles.size() ? index : 0;
}

} // namespace

const QStringList &TSOutputSettings::formatTitles()
{
    static const QStringList titles = [] {
        QStringList list;
        for (const Format &format : kFormats)
            list.append(QString::fromUtf16(format.title));
        return list;
    }();
    return titles;
}

const QStringList &TSOutputSettings::resizeWayTitles()
{
    static const QStringList titles{QStringLiteral("Keep Original Size"), QStringLiteral("By Width"),
                                    QStringLiteral("By Height"), QStringLiteral("By Percentage"),
                                    QStringLiteral("Fit Size")};
    return titles;
}

int TSOutputSettings::top(TSSizeField field)
{
    return row(field).top;
}

void TSOutputSettings::initSettingsView()
{
    const auto &defaults = platform::UserDefaults::standard();
    qualityChanged(kFirstQuality);
    formatChanged(defaults.integerForKey(kExportFormat));
    TSDataManager::dataManager()->resizeWay = TSResizeWay::KeepOriginalSize;
    Q_EMIT TSNotificationCenter::defaultCenter()->TSResizingPhotoView();
    initResizeValue();
    resizeWayChanged(defaults.integerForKey(kResizeStyle));
    m_namePattern.initObserver();
}

/// The steppers' limits hold also for what the defaults bring.
void TSOutputSettings::initResizeValue()
{
    for (size_t i = 0; i < kSizes.size(); ++i) {
        const qint64 kept =
            platform::UserDefaults::standard().integerForKey(QString::fromUtf16(kSizes[i].key));
        m_sizes[i] = int(std::clamp<qint64>(kept, 1, kSizes[i].top));
    }
}

void TSOutputSettings::formatChanged(qint64 index)
{
    m_pubFormat = knownIndex(index, formatTitles());
    const Format &format = kFormats[size_t(m_pubFormat)];
    TSDataManager *session = TSDataManager::dataManager();
    session->type = format.type;
    session->exportFormat = QString::fromUtf16(format.extension);
    platform::UserDefaults::standard().setInteger(kExportFormat, m_pubFormat);
    m_namePattern.textChanged();
}

bool TSOutputSettings::isQualityEnabled() const
{
    return kFormats[size_t(m_pubFormat)].type == TSFileType::JPG;
}

void TSOutputSettings::qualityChanged(int percent)
{
    m_quality = std::clamp(percent, 1, kTopQuality);
    TSDataManager::dataManager()->quality = m_quality / 100.0;
}

void TSOutputSettings::resizeWayChanged(qint64 index)
{
    m_pubResizeWay = knownIndex(index, resizeWayTitles());
    TSDataManager *session = TSDataManager::dataManager();
    session->resizeWay = unsigned(m_pubResizeWay);
    for (const TSSizeField field : sizesOfWay(m_pubResizeWay))
        session->*row(field).field = size(field);
    platform::UserDefaults::standard().setInteger(kResizeStyle, m_pubResizeWay);
}

void TSOutputSettings::sizeChanged(TSSizeField field, int value)
{
    sizeTyped(field, value);
    platform::UserDefaults::standard().synchronize();
}

void TSOutputSettings::sizeTyped(TSSizeField field, int value)
{
    storeSize(field, std::clamp(value, 1, top(field)));
}

void TSOutputSettings::sizeDidEndEditing()
{
    Q_EMIT TSNotificationCenter::defaultCenter()->TSResizingPhotoView();
}

void TSOutputSettings::storeSize(TSSizeField field, int value)
{
    m_sizes[size_t(field)] = value;
    TSDataManager::dataManager()->*row(field).field = value;
    platform::UserDefaults::standard().setInteger(QString::fromUtf16(row(field).key), value);
}
