#include "platform/NativeTime.h"

#include <ctime>

namespace {

std::uint16_t field(long value) {
    return static_cast<std::uint16_t>(value);
}

}  // namespace

SNativeTime nativeLocalTime() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    std::tm local{};
    localtime_r(&now.tv_sec, &local);
    return {field(local.tm_year + 1900), field(local.tm_mon + 1),       field(local.tm_wday),
            field(local.tm_mday),        field(local.tm_hour),          field(local.tm_min),
            field(local.tm_sec),         field(now.tv_nsec / 1'000'000)};
}
