// The console looks for serial ports once a second, and Qt then has udev open some sixty virtual
// terminals, only to find that they have no driver. That would be half of the work of a long run.
// Here udev is told to leave them out; the ports that are found, and all the rest of the search,
// stay the same.

#include <dlfcn.h>

struct udev_enumerate;

extern "C" int udev_enumerate_add_match_subsystem(udev_enumerate *search, const char *subsystem)
{
    using AddMatch = int (*)(udev_enumerate *, const char *);
    const auto find = [](void *where, const char *name) {
        return reinterpret_cast<AddMatch>(::dlsym(where, name));
    };
    static const AddMatch matchSubsystem = find(RTLD_NEXT, "udev_enumerate_add_match_subsystem");
    static const AddMatch matchName = find(RTLD_NEXT, "udev_enumerate_add_match_sysname");
    matchName(search, "tty[!0-9]*");
    return matchSubsystem(search, subsystem);
}
