#pragma once

#include "base/Result.h"
#include "shell/SkinPasses.h"

#include <QCache>
#include <QImage>
#include <QString>

#include <array>
#include <functional>
#include <future>
#include <memory>
#include <vector>

class QPainter;

namespace zentaro {

/// Where the passes drew last what takes the pointer (px).
struct SkinRects {
    Rect titleBar;
    std::array<Rect, 3> menuButtons{};
    std::array<Rect, kButtonCount> buttons{};
};

/// The window's pictures: loaded once, kept decoded, and drawn in the two passes.
class Skin {
public:
    Skin();
    ~Skin();

    /// Begins to decode the files that Load() will be asked for, beside the caller.
    void Begin(const QString& folder);
    /// To be called once. Decodes every file below `folder` (with a trailing separator). The first one, in load order,
    /// that cannot be loaded ends the load: it and the later ones stay empty, and the error's text names it.
    Result<void> Load(const QString& folder);

    /// Stretches the whole image into the rectangle (logical px) and gives the rectangle back. An empty image and a
    /// rectangle without area draw nothing. The painter may be moved and scaled, not turned.
    Rect Draw(QPainter& painter, SkinImage image, const Rect& rect);

    /// The background pass, for a client area of that size (logical px): for whoever wants the window's still picture
    /// without its buttons. The paint pass does not need it.
    void DrawBackGround(QPainter& painter, int width, int height);
    /// A button in its state; while that changes, a mixture of two pictures.
    Rect DrawButton(QPainter& painter, Button button, const SkinButtons& buttons, const Rect& rect);

    /// The paint pass.
    void Paint(QPainter& painter, int width, int height, const SkinButtons& buttons);

    /// The middle, as a share of the height, of what the picture shows in its place; halfway for an empty one.
    double Middle(SkinImage image) const;

    const SkinRects& Rects() const { return m_rects; }

private:
    struct CopyKey {
        SkinImage image;
        int width;
        int height; // device px
        bool operator==(const CopyKey&) const = default;
    };
    friend std::size_t qHash(const CopyKey& key, std::size_t seed)
    {
        return qHashMulti(seed, static_cast<int>(key.image), key.width, key.height);
    }

    struct Decoding;

    Rect DrawPicture(QPainter& painter, const Rect& rect, const std::function<QImage(const QSize&)>& picture);
    QImage ScaledCopy(SkinImage image, const QSize& size);

    std::shared_ptr<Decoding> m_decoding;
    std::vector<std::future<void>> m_decoders;
    std::array<QImage, kSkinImageCount> m_images;
    QCache<CopyKey, QImage> m_copies; // the cost is in KiB
    int m_look = 0;                   // of the copies
    SkinRects m_rects;
};

} // namespace zentaro
