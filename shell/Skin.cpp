#include "shell/Skin.h"

#include "platform/Files.h"
#include "shell/QtText.h"
#include "shell/Style.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>

namespace zentaro {

namespace {

constexpr qsizetype kCopiesKiB = 64 * 1024;    // a window that fills a 4K screen needs 36 MiB
constexpr std::size_t kLargestFile = 64 << 20; // bytes
constexpr unsigned kMaximumThreads = 4;
constexpr int kFaint = 128; // of 255: shadows and glows

QImage Decoded(const std::string& path)
{
    // Whole, and at once: Qt's reader would go to the file many times, which Windows takes long for.
    const auto bytes = platform::ReadTextFile(path, kLargestFile);
    auto image = bytes ? QImage::fromData(QByteArray::fromStdString(*bytes)) : QImage();
    if (image.isNull())
        return image;
    // The two formats that are copied to the screen without a look at each pixel's format.
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return image;
}

/// What is dark becomes black, what is bright stays so, and there is little between: signs without their plates.
QImage WithHighContrast(const QImage& picture)
{
    constexpr int kBlackBelow = 0x48;
    constexpr int kGain = 3;
    const auto stretch = [](int part) { return std::clamp((part - kBlackBelow) * kGain, 0, 255); };
    // From the background to the text: on a user's light background the signs are dark.
    const auto between = [](int from, int to, int share) { return from + (to - from) * share / 255; };
    const auto from = style::kBase.rgb();
    const auto to = style::kText.rgb();
    const bool isOurs = from == qRgb(0, 0, 0) && to == qRgb(255, 255, 255);
    auto result = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const auto pixel = qRgb(stretch(qRed(line[x])), stretch(qGreen(line[x])), stretch(qBlue(line[x])));
            const int share = std::max({ qRed(pixel), qGreen(pixel), qBlue(pixel) });
            const auto drawn = isOurs
                ? pixel
                : qRgb(between(qRed(from), qRed(to), share), between(qGreen(from), qGreen(to), share),
                    between(qBlue(from), qBlue(to), share));
            line[x] = (drawn & RGB_MASK) | (line[x] & ~RGB_MASK);
        }
    }
    result.convertTo(picture.format());
    return result;
}

/// `image` as large as the device pixels that it fills.
QImage Stretched(const QImage& image, const QSize& size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage Thinned(const QImage& image, double share)
{
    QImage thinned(image.size(), QImage::Format_ARGB32_Premultiplied);
    thinned.fill(Qt::transparent);
    QPainter painter(&thinned);
    painter.setOpacity(share);
    painter.drawImage(0, 0, image);
    return thinned;
}

/// Where both are the same, the mixture is it, too: unlike one drawn over the other.
QImage Mixed(const QImage& from, const QImage& to, double share)
{
    auto mixed = Thinned(from, 1 - share);
    QPainter painter(&mixed);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.drawImage(0, 0, Thinned(to, share));
    return mixed;
}

} // namespace

/// Any number of threads may run it at once, each until nothing is left to begin with.
struct Skin::Decoding {
    explicit Decoding(std::string path)
        : folder(std::move(path))
    {
    }
    // A failure ends the work behind it only: what comes before it in load order is still decoded.
    void Run()
    {
        for (auto i = next++; i < end; i = next++) {
            images[i] = Decoded(folder + files[i].name);
            auto last = end.load();
            while (images[i].isNull() && i < last && !end.compare_exchange_weak(last, i)) { }
        }
    }

    const std::string folder; // with a trailing separator
    const std::vector<SkinFile> files = SkinLoadOrder();
    std::array<QImage, kSkinImageCount> images;
    std::atomic<std::size_t> next = 0;
    std::atomic<std::size_t> end = files.size();
};

Skin::Skin()
    : m_copies(kCopiesKiB)
{
}

Skin::~Skin() = default;

void Skin::Begin(const QString& folder)
{
    m_decoding = std::make_shared<Decoding>(ToText(folder));
    // One processor is left to whoever has begun this.
    const auto others = std::clamp(std::thread::hardware_concurrency(), 2U, kMaximumThreads) - 1;
    for (unsigned i = 0; i < others; ++i)
        m_decoders.push_back(
            std::async(std::launch::async | std::launch::deferred, [decoding = m_decoding] { decoding->Run(); }));
}

Result<void> Skin::Load(const QString& folder)
{
    if (m_decoding == nullptr)
        Begin(folder);
    m_decoding->Run();
    for (const auto& decoder : m_decoders)
        decoder.wait();
    const auto decoding = std::exchange(m_decoding, nullptr);
    for (std::size_t i = 0; i < decoding->files.size(); ++i) {
        const auto& file = decoding->files[i];
        if (decoding->images[i].isNull())
            return Error{ 0, "cannot load the picture " + decoding->folder + file.name };
        m_images[static_cast<std::size_t>(file.image)] = decoding->images[i];
    }
    return {};
}

QImage Skin::ScaledCopy(SkinImage image, const QSize& size)
{
    if (m_images[static_cast<std::size_t>(image)].isNull())
        return {};
    if (std::exchange(m_look, style::Look()) != style::Look())
        m_copies.clear();
    const CopyKey key{ image, size.width(), size.height() };
    if (const auto* const copy = m_copies.object(key))
        return *copy;
    auto copy = Stretched(m_images[static_cast<std::size_t>(image)], size);
    if (style::HasHighContrast())
        copy = WithHighContrast(copy);
    m_copies.insert(key, new QImage(copy), copy.sizeInBytes() / 1024 + 1);
    return copy;
}

Rect Skin::Draw(QPainter& painter, SkinImage image, const Rect& rect)
{
    return DrawPicture(painter, rect, [&](const QSize& size) { return ScaledCopy(image, size); });
}

Rect Skin::DrawPicture(QPainter& painter, const Rect& rect, const std::function<QImage(const QSize&)>& picture)
{
    if (rect.width <= 0 || rect.height <= 0)
        return rect;
    // Both edges are rounded to device pixels, so that neighbours meet without a gap at every scale factor.
    const auto& toDevice = painter.deviceTransform();
    const auto place = toDevice.mapRect(QRectF(rect.left, rect.top, rect.width, rect.height));
    const QPoint from(qRound(place.left()), qRound(place.top()));
    const QPoint to(qRound(place.right()), qRound(place.bottom()));
    const QSize size(to.x() - from.x(), to.y() - from.y());
    if (size.isEmpty())
        return rect;
    const auto target = toDevice.inverted().mapRect(QRectF(from, size));
    if (const auto image = picture(size); !image.isNull())
        painter.drawImage(target, image);
    return rect;
}

double Skin::Middle(SkinImage image) const
{
    const auto& picture = m_images[static_cast<std::size_t>(image)];
    const auto shows = [&](int row) {
        const auto* const pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
        return std::any_of(pixels, pixels + picture.width(), [](QRgb pixel) { return qAlpha(pixel) > kFaint; });
    };
    int top = 0;
    int bottom = picture.height();
    while (top < bottom && !shows(top))
        ++top;
    while (bottom > top && !shows(bottom - 1))
        --bottom;
    return top < bottom ? (top + bottom) / 2.0 / picture.height() : 0.5;
}

void Skin::DrawBackGround(QPainter& painter, int width, int height)
{
    auto menuButton = m_rects.menuButtons.begin();
    for (const auto& [image, rect] : BackgroundPass(width, height)) {
        const auto drawn = Draw(painter, image, rect);
        if (image == SkinImage::TitleBar)
            m_rects.titleBar = drawn;
        else if (image == SkinImage::MenuButton)
            *menuButton++ = drawn;
    }
}

void Skin::Paint(QPainter& painter, int width, int height, const SkinButtons& buttons)
{
    Rect drawn;
    for (const auto& [image, rect] : PaintPass(width, height, buttons)) {
        if (image < SkinImage::FirstButton) {
            Draw(painter, image, rect);
            continue;
        }
        drawn = DrawButton(painter, ButtonOf(image), buttons, rect);
        m_rects.buttons[static_cast<std::size_t>(ButtonOf(image))] = drawn;
    }
    // The sound buttons come last and share one place, whichever of them shows.
    for (const auto sound : { Button::SoundOn, Button::SoundOff })
        m_rects.buttons[static_cast<std::size_t>(sound)] = drawn;
}

Rect Skin::DrawButton(QPainter& painter, Button button, const SkinButtons& buttons, const Rect& rect)
{
    const auto image = ButtonImage(button, buttons.StateOf(button));
    const auto& fade = buttons.FadeOf(button);
    if (fade.share >= 1)
        return Draw(painter, image, rect);
    return DrawPicture(painter, rect, [&](const QSize& size) {
        const auto from = ScaledCopy(ButtonImage(button, fade.from), size);
        const auto to = ScaledCopy(image, size);
        // One that could not be loaded was told of then; nothing can be mixed with it.
        return from.isNull() || to.isNull() ? to : Mixed(from, to, fade.share);
    });
}

} // namespace zentaro
