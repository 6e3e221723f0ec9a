#ifndef VYRCfdBaseExport_H
#define VYRCfdBaseExport_H

/// Visibility of what the module gives to other libraries; everything else in it is hidden. The second is for what is
/// inside an exported class and nobody else's business. The third is for inline functions, which the module carries
/// as well: programs that were built when they were not inline, and compilers that do not inline, call them there.
#if defined(__GNUC__)
#define VYRCfdBaseExport __attribute__((visibility("default")))
#define VYRCfdBaseLocal __attribute__((visibility("hidden")))
#if defined(VYRCFDBASE_BUILD)
#define VYRCfdBaseInline __attribute__((visibility("default"), used))
#else
#define VYRCfdBaseInline __attribute__((visibility("default")))
#endif
#else
#define VYRCfdBaseExport
#define VYRCfdBaseLocal
#define VYRCfdBaseInline
#endif

#endif
