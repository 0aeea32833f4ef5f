// The Qt headers that nearly every source needs, parsed once per target.
#include <QtWidgets>
