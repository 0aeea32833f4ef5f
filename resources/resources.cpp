#include "resources.h"

#include <QDir>

// Q_INIT_RESOURCE must stand outside every namespace. It is needed at all because this is a static
// library: the linker drops the collection's object file, and with it the automatic registration,
// unless something refers to it.
void loadResources()
{
    Q_INIT_RESOURCE(kestrix);
}
