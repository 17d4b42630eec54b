#ifndef NOCTURNE_DARKFUSIONSTYLE_P_H
#define NOCTURNE_DARKFUSIONSTYLE_P_H

#include "darkfusionstyle.h"

#include <private/qcommonstyle_p.h>

class DarkFusionStylePrivate : public QCommonStylePrivate
{
    Q_DECLARE_PUBLIC(DarkFusionStyle)

public:
    DarkFusionStylePrivate();
};

#endif
