#pragma once

#include "export/TSExportHost.h"
#include "naming/TSTokenValue.h"
#include "platform/text/TextAttributes.h"
#include "session/TSOutputCodes.h"
#include "session/TSPositionCode.h"

#include <optional>
#include <QPointF>
#include <QStringList>
#include <vector>

/// The glow of a text in the units of its controls.
struct TSBatchGlow {
    double width = 0;
    double blur = 0;
    platform::Color color = platform::Color::black();
};

struct TSBatchStroke {
    double width = 0;
    platform::Color color = platform::Color::black();
};

/// Degrees, percent of the font's size on the photo, pixels; the opacity is the colour's alpha.
struct TSBatchShadow {
    double angle = 0;
    double offset = 0;
    double blur = 0;
    platform::Color color{0, 0, 0, 0.5};
};

/// One mark as the command line asks for it, or a block of marks with places of their own: a profile, or a
/// group of the marks given before it.
struct TSBatchMark {
    enum class Kind { Text, Script, Image, Profile, Group };

    Kind kind = Kind::Text;
    std::vector<TSTokenValue> words;
    QString imagePath;
    QString profilePath;
    /// Of a group, in the order given.
    std::vector<TSBatchMark> members;

    unsigned anchor = TSPositionCode::RightBottom;
    /// In percent of the canvas or in pixels of the photo.
    QPointF offset{-2, -2};
    unsigned unit = TSOffsetUnit::Percentage;
    /// In percent of the photo's height.
    double height = 5;
    double angle = 0;
    double opacity = 80;

    platform::FontDescription font{QStringLiteral("Helvetica"), {}, 36};
    platform::Color color = platform::Color::white();
    std::optional<TSBatchStroke> stroke;
    std::optional<TSBatchGlow> glow;
    std::optional<TSBatchShadow> shadow;
};

/// All that a command line asks for.
struct TSBatchOptions {
    QStringList photos;
    /// In the order given: the first lies on top.
    std::vector<TSBatchMark> marks;

    QString output;
    unsigned type = TSFileType::JPG;
    QString exportFormat = QStringLiteral("jpg");
    int quality = 85;
    unsigned resizeWay = TSResizeWay::KeepOriginalSize;
    double outputWidth = 0;
    double outputHeight = 0;
    double percentage = 0;
    std::vector<TSTokenValue> name;
    /// The name to save the marks under, or nothing.
    QString savedProfile;
    /// A `TSConflictChoice`.
    int conflict = TSConflictChoice::Rename;

    bool isJson = false;
    bool isDryRun = false;
    bool isStrict = false;
    /// Photos that stream at once; 0 for as many as there are processors.
    int jobs = 0;
    bool wantsProfiles = false;
    bool wantsHelp = false;
    bool wantsVersion = false;
};
