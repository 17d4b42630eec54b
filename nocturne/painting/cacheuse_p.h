#ifndef NOCTURNE_CACHEUSE_P_H
#define NOCTURNE_CACHEUSE_P_H

#include <QtCore/QtGlobal>

namespace Nocturne {

/// How often something was looked for in a cache, and found. Costs an addition a look-up, so that
/// caches can be judged by what they save.
struct CacheUse
{
    quint64 lookUps = 0;
    quint64 hits = 0;

    void count(bool isHit)
    {
        ++lookUps;
        hits += isHit ? 1 : 0;
    }
};

inline CacheUse keptPixmapUse;  ///< drawings and arrows of the style
inline CacheUse keptTextUse;    ///< shaped lines, shortened texts and measures
inline CacheUse textPictureUse; ///< lines together with their ground

} // namespace Nocturne

#endif
