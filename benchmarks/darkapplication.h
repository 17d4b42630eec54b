#ifndef NOCTURNE_DARKAPPLICATION_H
#define NOCTURNE_DARKAPPLICATION_H

#include "benchmark.h"

#include <nocturne/DarkFusionStyle>
#include <nocturne/DarkUX>

#include <QtWidgets/QApplication>

/// An application in the theme's style and palette, without a display unless the caller chose one.
class DarkApplication
{
public:
    DarkApplication(int &argc, char **argv)
        : m_application((useOffscreenPlatform(), argc), argv)
    {
        QApplication::setStyle(m_theme.style());
        QApplication::setPalette(m_theme.palette());
    }

    const DarkUX &theme() const { return m_theme; }

private:
    QApplication m_application;
    DarkUX m_theme;
};

#endif
