#pragma once

#include <QtGlobal>

namespace platform {

/// The entries of TIFF directories, which EXIF blocks share, by the numbers of the format.
namespace tifftag {

enum Tag : quint16 {
    NewSubfileType = 0x00FE,
    Width = 0x0100,
    Height = 0x0101,
    BitsPerSample = 0x0102,
    Compression = 0x0103,
    Photometric = 0x0106,
    DocumentName = 0x010D,
    ImageDescription = 0x010E,
    Make = 0x010F,
    Model = 0x0110,
    StripOffsets = 0x0111,
    Orientation = 0x0112,
    SamplesPerPixel = 0x0115,
    StripByteCounts = 0x0117,
    XResolution = 0x011A,
    YResolution = 0x011B,
    PlanarConfiguration = 0x011C,
    PageName = 0x011D,
    ResolutionUnit = 0x0128,
    Software = 0x0131,
    DateTime = 0x0132,
    Artist = 0x013B,
    HostComputer = 0x013C,
    Palette = 0x0140,
    TileOffsets = 0x0144,
    TileByteCounts = 0x0145,
    SubDirectories = 0x014A,
    JpegOffset = 0x0201,
    JpegLength = 0x0202,
    XmpPacket = 0x02BC,
    IptcRecord = 0x83BB,
    ResourcesOfPhotoshop = 0x8649,
    ExifDirectory = 0x8769,
    ColorProfile = 0x8773,
    GpsDirectory = 0x8825,
    MakerNote = 0x927C,
    InteroperabilityDirectory = 0xA005
};

} // namespace tifftag

} // namespace platform
