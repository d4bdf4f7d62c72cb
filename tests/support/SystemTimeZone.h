#pragma once

#include <QByteArray>

#include <ctime>

namespace quillon::testing {

/// The system's time zone for as long as the object lives.
class SystemTimeZone {
public:
    explicit SystemTimeZone(const char* name) : before_(qgetenv("TZ")) { set(name); }
    ~SystemTimeZone() { set(before_); }
    SystemTimeZone(const SystemTimeZone&) = delete;
    SystemTimeZone& operator=(const SystemTimeZone&) = delete;

private:
    static void set(const QByteArray& name) {
        if (name.isEmpty())
            qunsetenv("TZ");
        else
            qputenv("TZ", name);
        tzset();
    }

    QByteArray before_;
};

} // namespace quillon::testing
