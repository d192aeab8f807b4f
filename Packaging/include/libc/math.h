// C99 mathematics of the device's libSystem, as far as libc++'s headers name it.
#pragma once

typedef float float_t;
typedef double double_t;

#define HUGE_VAL __builtin_huge_val()
#define HUGE_VALF __builtin_huge_valf()
#define HUGE_VALL __builtin_huge_vall()
#define INFINITY __builtin_inff()
#define NAN __builtin_nanf("")
#define FP_NAN 1
#define FP_INFINITE 2
#define FP_ZERO 3
#define FP_NORMAL 4
#define FP_SUBNORMAL 5
#define FP_ILOGB0 (-2147483647 - 1)
#define FP_ILOGBNAN (-2147483647 - 1)
#define MATH_ERRNO 1
#define MATH_ERREXCEPT 2
#define math_errhandling MATH_ERREXCEPT

#define M_PI 3.14159265358979323846
#define M_PI_2 1.57079632679489661923

#ifdef __cplusplus
extern "C" {
#endif

// Each function for double, float and long double.
#define EACH(declare, name) declare(double, name) declare(float, name##f) declare(long double, name##l)

#define UNARY(type, name) type name(type);
EACH(UNARY, acos)
EACH(UNARY, acosh)
EACH(UNARY, asin)
EACH(UNARY, asinh)
EACH(UNARY, atan)
EACH(UNARY, atanh)
EACH(UNARY, cbrt)
EACH(UNARY, ceil)
EACH(UNARY, cos)
EACH(UNARY, cosh)
EACH(UNARY, erf)
EACH(UNARY, erfc)
EACH(UNARY, exp)
EACH(UNARY, exp2)
EACH(UNARY, expm1)
EACH(UNARY, fabs)
EACH(UNARY, floor)
EACH(UNARY, lgamma)
EACH(UNARY, log)
EACH(UNARY, log10)
EACH(UNARY, log1p)
EACH(UNARY, log2)
EACH(UNARY, logb)
EACH(UNARY, nearbyint)
EACH(UNARY, rint)
EACH(UNARY, round)
EACH(UNARY, sin)
EACH(UNARY, sinh)
EACH(UNARY, sqrt)
EACH(UNARY, tan)
EACH(UNARY, tanh)
EACH(UNARY, tgamma)
EACH(UNARY, trunc)
#undef UNARY

#define BINARY(type, name) type name(type, type);
EACH(BINARY, atan2)
EACH(BINARY, copysign)
EACH(BINARY, fdim)
EACH(BINARY, fmax)
EACH(BINARY, fmin)
EACH(BINARY, fmod)
EACH(BINARY, hypot)
EACH(BINARY, nextafter)
EACH(BINARY, pow)
EACH(BINARY, remainder)
#undef BINARY

#define SPECIAL(type, name) type name(type, type, type);
EACH(SPECIAL, fma)
#undef SPECIAL
#define SPECIAL(type, name) int name(type);
EACH(SPECIAL, ilogb)
#undef SPECIAL
#define SPECIAL(type, name) long name(type);
EACH(SPECIAL, lrint)
EACH(SPECIAL, lround)
#undef SPECIAL
#define SPECIAL(type, name) long long name(type);
EACH(SPECIAL, llrint)
EACH(SPECIAL, llround)
#undef SPECIAL
#define SPECIAL(type, name) type name(type, int *);
EACH(SPECIAL, frexp)
#undef SPECIAL
#define SPECIAL(type, name) type name(type, int);
EACH(SPECIAL, ldexp)
EACH(SPECIAL, scalbn)
#undef SPECIAL
#define SPECIAL(type, name) type name(type, long);
EACH(SPECIAL, scalbln)
#undef SPECIAL
#define SPECIAL(type, name) type name(type, type *);
EACH(SPECIAL, modf)
#undef SPECIAL
#define SPECIAL(type, name) type name(const char *);
EACH(SPECIAL, nan)
#undef SPECIAL
#define SPECIAL(type, name) type name(type, long double);
EACH(SPECIAL, nexttoward)
#undef SPECIAL
#define SPECIAL(type, name) type name(type, type, int *);
EACH(SPECIAL, remquo)
#undef SPECIAL
#undef EACH

#ifdef __cplusplus
}
#endif

#define fpclassify(x) __builtin_fpclassify(FP_NAN, FP_INFINITE, FP_NORMAL, FP_SUBNORMAL, FP_ZERO, x)
#define signbit(x) __builtin_signbit(x)
#define isfinite(x) __builtin_isfinite(x)
#define isinf(x) __builtin_isinf(x)
#define isnan(x) __builtin_isnan(x)
#define isnormal(x) __builtin_isnormal(x)
#define isgreater(x, y) __builtin_isgreater(x, y)
#define isgreaterequal(x, y) __builtin_isgreaterequal(x, y)
#define isless(x, y) __builtin_isless(x, y)
#define islessequal(x, y) __builtin_islessequal(x, y)
#define islessgreater(x, y) __builtin_islessgreater(x, y)
#define isunordered(x, y) __builtin_isunordered(x, y)
