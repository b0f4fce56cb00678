#include "logo.h"

#include "file_name.h"

#include <QFile>

#include <dlfcn.h>
#include <fcntl.h>
#include <png.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

static_assert(PNG_LIBPNG_VER_SONUM == 16);

namespace {

constexpr QByteArrayView signature = "\x89PNG\r\n\x1A\n"; // of all PNG files

constexpr qint64 largestFile = 4'000'000; // bytes
constexpr unsigned int largestSide = 4096; // dots
constexpr int highestLogo = 1024; // dots, some 13 cm of paper

/* The operations of the PNG library that are needed, from a library that is loaded only now: at every start
 * of the program it would cost time. */
struct PngLibrary
{
    PngLibrary()
    {
        void *const library = dlopen("libpng16.so.16", RTLD_NOW | RTLD_LOCAL);
        if (!library)
            return;
        const auto find = [library](auto &operation, const char *name) {
            operation = reinterpret_cast<std::remove_reference_t<decltype(operation)>>(dlsym(library, name));
        };
        find(beginRead, "png_image_begin_read_from_memory");
        find(finishRead, "png_image_finish_read");
        find(release, "png_image_free");
    }

    bool isLoaded() const { return beginRead && finishRead && release; }

    decltype(&png_image_begin_read_from_memory) beginRead = nullptr;
    decltype(&png_image_finish_read) finishRead = nullptr;
    decltype(&png_image_free) release = nullptr;
};

/* A picture in 256 greys, row by row, 255 being white. */
struct GreyPicture
{
    int width = 0;
    int height = 0;
    std::vector<quint8> greys;

    int grey(int column, int row) const
    {
        return greys[static_cast<std::size_t>(row) * static_cast<std::size_t>(width)
                     + static_cast<std::size_t>(column)];
    }
};

/* The bytes of a regular file: a FIFO would wait for a writer. */
QByteArray fileContents(const QString &name, QString &fault)
{
    const int descriptor = open(fileNameBytes(name).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status = {};
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        fault = qt_error_string();
    else if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        fault = u"it is no regular file"_s;
    else if (status.st_size > largestFile)
        fault = u"the file is too large"_s;
    else
        return file.read(largestFile);
    return {};
}

GreyPicture decoded(const QByteArray &png, QString &fault)
{
    static const PngLibrary library;
    if (!library.isLoaded()) {
        fault = u"the library libpng16 is missing"_s;
        return {};
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    const auto releaseImage = [](png_image *read) { library.release(read); };
    const std::unique_ptr<png_image, decltype(releaseImage)> released(&image, releaseImage);

    GreyPicture picture;
    // The size is known before the picture is unpacked.
    if (library.beginRead(&image, png.constData(), static_cast<std::size_t>(png.size())) == 0) {
        fault = QString::fromLatin1(image.message);
    } else if (image.width > largestSide || image.height > largestSide) {
        fault = u"the picture is too large"_s;
    } else {
        image.format = PNG_FORMAT_GRAY;
        picture.width = static_cast<int>(image.width);
        picture.height = static_cast<int>(image.height);
        picture.greys.resize(PNG_IMAGE_SIZE(image));
        const png_color white = {255, 255, 255};
        if (library.finishRead(&image, &white, picture.greys.data(), 0, nullptr) == 0)
            fault = QString::fromLatin1(image.message);
    }
    return picture;
}

/* The picture in a smaller size: each dot is the mean of those that it stands for. */
GreyPicture scaledDown(const GreyPicture &picture, int width, int height)
{
    GreyPicture scaled{width, height, {}};
    scaled.greys.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        const int top = y * picture.height / height;
        const int bottom = (y + 1) * picture.height / height;
        for (int x = 0; x < width; ++x) {
            const int left = x * picture.width / width;
            const int right = (x + 1) * picture.width / width;
            int sum = 0;
            int count = 0;
            for (int row = top; row < bottom; ++row)
                for (int column = left; column < right; ++column, ++count)
                    sum += picture.grey(column, row);
            scaled.greys.push_back(static_cast<quint8>(sum / std::max(count, 1)));
        }
    }
    return scaled;
}

GreyPicture fitted(const GreyPicture &picture, int dots)
{
    Q_ASSERT(dots > 0);
    int width = picture.width;
    int height = picture.height;
    if (width > dots) {
        height = std::max(1, height * dots / width);
        width = dots;
    }
    if (height > highestLogo) {
        width = std::max(1, width * highestLogo / height);
        height = highestLogo;
    }
    return width == picture.width && height == picture.height ? picture : scaledDown(picture, width, height);
}

/* Black or white by the method of Floyd and Steinberg: what a dot is too dark or too light goes to those
 * right of it and below. */
Raster dithered(const GreyPicture &picture, int dots)
{
    Raster raster;
    raster.bytesPerRow = (dots + 7) / 8;
    raster.rows = picture.height;
    raster.bits.fill('\0', qsizetype(raster.bytesPerRow) * raster.rows);

    const int margin = (dots - picture.width) / 2;
    const auto width = static_cast<std::size_t>(picture.width);
    // Each with a dot to the left and right of the picture, which takes errors and hands none on.
    std::vector<int> errors(width + 2);
    std::vector<int> errorsBelow(width + 2);
    for (int y = 0; y < picture.height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const int grey = picture.grey(static_cast<int>(x), y) + errors[x + 1] / 16;
            const bool black = grey < 128;
            const int error = grey - (black ? 0 : 255);
            errors[x + 2] += 7 * error;
            errorsBelow[x] += 3 * error;
            errorsBelow[x + 1] += 5 * error;
            errorsBelow[x + 2] += error;
            if (black) {
                const int dot = margin + static_cast<int>(x);
                char &bits = raster.bits[qsizetype(y) * raster.bytesPerRow + dot / 8];
                bits = static_cast<char>(bits | (0x80 >> dot % 8));
            }
        }
        errors.swap(errorsBelow);
        std::ranges::fill(errorsBelow, 0);
    }
    return raster;
}

} // namespace

Logo readLogo(const QString &file, int dots)
{
    Logo logo;
    const QByteArray png = fileContents(file, logo.fault);
    if (logo.fault.isEmpty() && !png.startsWith(signature))
        logo.fault = u"it is no PNG file"_s;
    if (!logo.fault.isEmpty())
        return logo;
    const GreyPicture picture = decoded(png, logo.fault);
    if (logo.fault.isEmpty())
        logo.raster = dithered(fitted(picture, dots), dots);
    return logo;
}
