#pragma once

#include "base/Picture.h"

#include <QCache>
#include <QImage>
#include <QSize>

namespace zentaro {

/// Scaled thumbnails, so that a paint only copies. Holds at most 24 MB; what was not used for longest goes first.
class ThumbCache {
public:
    ThumbCache();

    /// The whole picture stretched to `size`, in device pixels; null when one of the two is empty.
    QImage Scaled(const Picture& picture, const QSize& size);

private:
    struct Key {
        const void* id;
        int width, height;
        bool operator==(const Key&) const = default;
    };
    struct Scale {
        Picture source; // keeps the identity from being given to another picture
        QImage image;
    };
    friend size_t qHash(const Key& key, size_t seed) { return qHashMulti(seed, key.id, key.width, key.height); }

    QCache<Key, Scale> m_images;
};

} // namespace zentaro
