// The device's general utilities, as far as libc++'s headers name them.
#pragma once

#include <stddef.h>

#define EXIT_FAILURE 1
#define EXIT_SUCCESS 0
#define RAND_MAX 0x7fffffff
#define MB_CUR_MAX 1

typedef struct {
    int quot, rem;
} div_t;
typedef struct {
    long quot, rem;
} ldiv_t;
typedef struct {
    long long quot, rem;
} lldiv_t;

#ifdef __cplusplus
extern "C" {
#endif
void *malloc(size_t size);
void *calloc(size_t count, size_t size);
void *realloc(void *memory, size_t size);
void free(void *memory);
int posix_memalign(void **memory, size_t alignment, size_t size);

__attribute__((noreturn)) void abort(void);
__attribute__((noreturn)) void exit(int status);
__attribute__((noreturn)) void _Exit(int status);
int atexit(void (*function)(void));
char *getenv(const char *name);
int system(const char *command);

double atof(const char *text);
int atoi(const char *text);
long atol(const char *text);
long long atoll(const char *text);
double strtod(const char *text, char **end);
float strtof(const char *text, char **end);
long double strtold(const char *text, char **end);
long strtol(const char *text, char **end, int base);
long long strtoll(const char *text, char **end, int base);
unsigned long strtoul(const char *text, char **end, int base);
unsigned long long strtoull(const char *text, char **end, int base);

int abs(int value);
long labs(long value);
long long llabs(long long value);
div_t div(int numerator, int denominator);
ldiv_t ldiv(long numerator, long denominator);
lldiv_t lldiv(long long numerator, long long denominator);
int rand(void);
void srand(unsigned seed);

typedef int (*comparison)(const void *, const void *);
void *bsearch(const void *key, const void *base, size_t count, size_t size, comparison compare);
void qsort(void *base, size_t count, size_t size, comparison compare);

int mblen(const char *text, size_t size);
int mbtowc(wchar_t *wide, const char *text, size_t size);
int wctomb(char *text, wchar_t wide);
size_t mbstowcs(wchar_t *wide, const char *text, size_t size);
size_t wcstombs(char *text, const wchar_t *wide, size_t size);
#ifdef __cplusplus
}
#endif
