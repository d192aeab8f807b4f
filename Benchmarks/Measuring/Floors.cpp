#include "Floors.hpp"

#include "ReadMeter.hpp"

#include <cairo.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>

namespace bench {

double bareReadSeconds(const std::filesystem::path &file) {
    constexpr int kTimes = 2000;
    char bytes[16384];
    double start = processorTime();
    for (int i = 0; i < kTimes; ++i) {
        // The C library's calls lead into the device's folder here.
        auto descriptor = static_cast<int>(syscall(SYS_openat, AT_FDCWD, file.c_str(), O_RDONLY | O_CLOEXEC));
        if (descriptor < 0) throw std::system_error(errno, std::generic_category(), file.string());
        while (syscall(SYS_read, descriptor, bytes, sizeof bytes) > 0) {}
        syscall(SYS_close, descriptor);
    }
    return (processorTime() - start) / kTimes;
}

double barePaintSeconds(int width, int height, const std::vector<render::PixelRect> &parts) {
    if (parts.empty()) return 0;
    cairo_surface_t *source = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
    cairo_surface_t *target = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
    cairo_t *context = cairo_create(target);
    auto paint = [&] {
        for (const auto &part : parts) {
            cairo_set_source_surface(context, source, 0, 0);
            cairo_rectangle(context, part.x, part.y, part.width, part.height);
            cairo_fill(context);
        }
    };
    paint(); // the first touch of the memory is the kernel's work
    double start = processorTime();
    paint();
    double seconds = processorTime() - start;
    cairo_destroy(context);
    cairo_surface_destroy(target);
    cairo_surface_destroy(source);
    return seconds;
}

} // namespace bench
