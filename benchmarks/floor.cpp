#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <turbojpeg.h>
#include <vector>

namespace {

constexpr int Quality = 85;

struct Codec {
    std::unique_ptr<void, int (*)(tjhandle)> decoder{tjInitDecompress(), tjDestroy};
    std::unique_ptr<void, int (*)(tjhandle)> encoder{tjInitCompress(), tjDestroy};
    std::vector<unsigned char> source;
    std::vector<unsigned char> pixels;
    std::vector<unsigned char> target;
};

bool readFile(const std::filesystem::path &path, std::vector<unsigned char> &bytes)
{
    std::ifstream file(path, std::ios::binary);
    std::error_code error;
    bytes.resize(std::filesystem::file_size(path, error));
    return !error && file.read(reinterpret_cast<char *>(bytes.data()), std::streamsize(bytes.size()));
}

bool reencode(Codec &codec, const std::filesystem::path &from, const std::filesystem::path &to)
{
    int width = 0, height = 0, sampling = 0, space = 0;
    if (!readFile(from, codec.source) ||
        tjDecompressHeader3(codec.decoder.get(), codec.source.data(), codec.source.size(), &width, &height,
                            &sampling, &space))
        return false;
    codec.pixels.resize(std::size_t(width) * height * tjPixelSize[TJPF_BGRX]);
    codec.target.resize(tjBufSize(width, height, TJSAMP_420));
    unsigned char *target = codec.target.data();
    unsigned long size = codec.target.size();
    if (tjDecompress2(codec.decoder.get(), codec.source.data(), codec.source.size(), codec.pixels.data(),
                      width, 0, height, TJPF_BGRX, 0) ||
        tjCompress2(codec.encoder.get(), codec.pixels.data(), width, 0, height, TJPF_BGRX, &target, &size,
                    TJSAMP_420, Quality, TJFLAG_NOREALLOC))
        return false;
    return bool(std::ofstream(to, std::ios::binary)
                    .write(reinterpret_cast<const char *>(target), std::streamsize(size)));
}

} // namespace

/// Decodes each JPEG to 32-bit pixels and encodes it again, on one thread: what a marked photo costs before
/// anything is marked.
int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "Usage: bench-floor FOLDER PHOTO...\n");
        return 2;
    }
    Codec codec;
    for (int i = 2; i < argc; ++i) {
        const std::filesystem::path photo = argv[i];
        if (!reencode(codec, photo, std::filesystem::path(argv[1]) / photo.filename())) {
            std::fprintf(stderr, "bench-floor: %s: could not be encoded again.\n", argv[i]);
            return 1;
        }
    }
    return 0;
}
