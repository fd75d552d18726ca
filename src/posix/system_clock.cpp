#include "posix/system_clock.h"

namespace quor {

namespace {

std::string TwoDigits(int number)
{
    std::string text(number < 10 ? 1 : 0, '0');
    return text += std::to_string(number);
}

} // namespace

std::string GeneralDate(const std::tm& time)
{
    constexpr int noon = 12;
    const int hour = time.tm_hour % noon == 0 ? noon : time.tm_hour % noon;
    return std::to_string(time.tm_mon + 1) + '/' + std::to_string(time.tm_mday) + '/' +
           std::to_string(time.tm_year + 1900) + ' ' + std::to_string(hour) + ':' + TwoDigits(time.tm_min) + ':' +
           TwoDigits(time.tm_sec) + (time.tm_hour < noon ? " AM" : " PM");
}

std::string SystemClock::Now()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return GeneralDate(local);
}

} // namespace quor
