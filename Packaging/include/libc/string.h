// The device's memory and string functions.
#pragma once

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif
void *memcpy(void *to, const void *from, size_t size);
void *memmove(void *to, const void *from, size_t size);
void *memset(void *memory, int byte, size_t size);
int memcmp(const void *one, const void *other, size_t size);
void *memchr(const void *memory, int byte, size_t size);

char *strcpy(char *to, const char *from);
char *strncpy(char *to, const char *from, size_t size);
char *strcat(char *to, const char *from);
char *strncat(char *to, const char *from, size_t size);
int strcmp(const char *one, const char *other);
int strncmp(const char *one, const char *other, size_t size);
int strcoll(const char *one, const char *other);
size_t strxfrm(char *to, const char *from, size_t size);
char *strchr(const char *text, int byte);
char *strrchr(const char *text, int byte);
char *strpbrk(const char *text, const char *bytes);
char *strstr(const char *text, const char *part);
char *strtok(char *text, const char *separators);
size_t strspn(const char *text, const char *bytes);
size_t strcspn(const char *text, const char *bytes);
size_t strlen(const char *text);
char *strerror(int error);
#ifdef __cplusplus
}
#endif
