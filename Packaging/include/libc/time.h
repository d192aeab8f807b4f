// The device's calendar time, as far as libc++'s headers name it.
#pragma once

#include <stddef.h>

typedef long time_t;
typedef unsigned long clock_t;

struct timespec {
    time_t tv_sec;
    long tv_nsec;
};

struct tm {
    int tm_sec, tm_min, tm_hour, tm_mday, tm_mon, tm_year, tm_wday, tm_yday, tm_isdst;
    long tm_gmtoff;
    char *tm_zone;
};

#ifdef __cplusplus
extern "C" {
#endif
clock_t clock(void);
time_t time(time_t *result);
double difftime(time_t end, time_t start);
time_t mktime(struct tm *time);
struct tm *gmtime(const time_t *time);
struct tm *localtime(const time_t *time);
char *asctime(const struct tm *time);
char *ctime(const time_t *time);
size_t strftime(char *text, size_t size, const char *format, const struct tm *time);
#ifdef __cplusplus
}
#endif
