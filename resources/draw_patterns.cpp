// Draws the pattern images of the main window into the directory that it is given. The build runs
// it, so that they are changed here and nowhere else. It draws the same every time, and every tile
// continues seamlessly into itself.

#include <QDir>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr std::size_t tilePoints = 192;

using Ring = std::vector<double>;

/// The standard library's distributions may change from one release to the next; its engine may
/// not.
class Noise
{
public:
    explicit Noise(std::uint32_t seed)
        : m_engine(seed)
    {}

    /// Close to a normal distribution of mean 0 and deviation 1.
    double next()
    {
        double sum = 0;
        for (int i = 0; i < 12; ++i) {
            sum += static_cast<double>(m_engine()) / 0x1p32;
        }
        return sum - 6;
    }

    /// Values of deviation 1 that run into each other over `reach` neighbours, the last ones into
    /// the first.
    Ring ring(std::size_t count, std::size_t reach)
    {
        Ring raw(count);
        std::ranges::generate(raw, [this] { return next(); });
        Ring smooth(count);
        for (std::size_t i = 0; i < count; ++i) {
            for (std::size_t j = 0; j < reach; ++j) {
                smooth[i] += raw[(i + j) % count] / std::sqrt(static_cast<double>(reach));
            }
        }
        return smooth;
    }

private:
    std::mt19937 m_engine;
};

/// A tile whose greys are the values of `levelAt`, with blue changed by `blueTint`.
template <typename LevelAt>
QImage tile(std::size_t pixelsPerPoint, int blueTint, const LevelAt& levelAt)
{
    const auto side = static_cast<int>(tilePoints * pixelsPerPoint);
    // One byte a pixel: the program reads these each time it starts.
    QImage image(side, side, QImage::Format_Indexed8);
    for (int i = 0; i < 256; ++i) {
        image.setColor(i, qRgb(i, i, std::clamp(i + blueTint, 0, 255)));
    }
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double level = levelAt(static_cast<std::size_t>(x), static_cast<std::size_t>(y));
            image.setPixel(x, y, static_cast<uint>(std::clamp(std::lround(level), 0L, 255L)));
        }
    }
    return image;
}

/// Dark linen: a plain weave of threads one point thick, none of them quite even.
QImage linen(std::size_t pixelsPerPoint)
{
    constexpr double ground = 58.5;
    constexpr double threadDifference = 0.5;
    constexpr double unevenness = 4.8;
    constexpr double roundness = 2.0;

    Noise noise(7);
    const auto spin = [&noise] {
        std::vector<Ring> threads(tilePoints);
        for (auto& thread : threads) {
            const double tone = ground + threadDifference * noise.next();
            thread = noise.ring(tilePoints, 3);
            std::ranges::for_each(thread,
                                  [&](double& value) { value = tone + unevenness * value; });
        }
        return threads;
    };
    const auto warp = spin();
    const auto weft = spin();

    return tile(pixelsPerPoint, 0, [&](std::size_t x, std::size_t y) {
        const auto column = x / pixelsPerPoint;
        const auto row = y / pixelsPerPoint;
        const bool isWarpAbove = (column + row) % 2 == 0;
        const double along = warp[column][row];
        const double across = weft[row][column];
        const double woven = isWarpAbove ? (2 * along + across) / 3 : (2 * across + along) / 3;
        // Light from the upper left: a thread is brighter on that side, where there are pixels
        // enough to show it.
        const auto place = (isWarpAbove ? x : y) % pixelsPerPoint;
        const double light =
            static_cast<double>(pixelsPerPoint - 1) / 2 - static_cast<double>(place);
        return woven + 2 * roundness * light;
    });
}

/// White paper with a faint, fine grain.
QImage paper(std::size_t pixelsPerPoint)
{
    constexpr double ground = 233;
    constexpr double grain = 1.1;

    Noise noise(11);
    const auto pixels = tilePoints * pixelsPerPoint;
    std::vector<Ring> rows(pixels);
    std::ranges::generate(rows, [&] { return noise.ring(pixels, pixelsPerPoint); });
    return tile(pixelsPerPoint, -2, [&](std::size_t x, std::size_t y) {
        double sum = 0;
        for (std::size_t i = 0; i < pixelsPerPoint; ++i) {
            sum += rows[(y + i) % pixels][x];
        }
        return ground + grain * sum / std::sqrt(static_cast<double>(pixelsPerPoint));
    });
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: draw_patterns DIRECTORY\n", stderr);
        return 2;
    }
    const QDir directory(QString::fromLocal8Bit(argv[1]));
    const bool isSaved =
        linen(1).save(directory.filePath(QStringLiteral("black_linen_v2.png"))) &&
        linen(2).save(directory.filePath(QStringLiteral("black_linen_v2@2x.png"))) &&
        paper(1).save(directory.filePath(QStringLiteral("whitey.png"))) &&
        paper(2).save(directory.filePath(QStringLiteral("whitey@2x.png")));
    if (!isSaved) {
        std::fprintf(stderr, "Unable to write the patterns into %s\n", argv[1]);
    }
    return isSaved ? 0 : 1;
}
