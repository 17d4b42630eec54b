#include <nocturne/theme/singleton.h>

DarkUX *themeByCopiedPointer();

/// Compiled as no host of the toolkit may be any more: the program then holds the theme's pointer
/// itself, and the library must use that one.
DarkUX *themeByCopiedPointer()
{
    return Singleton<DarkUX>::getInstancePtr();
}
