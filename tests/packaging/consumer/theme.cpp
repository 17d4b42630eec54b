#include <nocturne/theme/darkux.h>

const DarkUX *currentTheme()
{
    return DarkUX::getInstancePtr();
}
