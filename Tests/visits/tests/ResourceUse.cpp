#include "tests/ResourceUse.h"

#include <malloc.h>

#include <QDir>
#include <QFile>

// Only a program with the address sanitizer has this function.
extern "C" __attribute__((weak)) std::size_t
__sanitizer_get_current_allocated_bytes(); // NOLINT(bugprone-reserved-identifier)

namespace kx {

namespace {

std::size_t allocatedBytes() {
    if (&__sanitizer_get_current_allocated_bytes != nullptr) {
        return __sanitizer_get_current_allocated_bytes();
    }
    const auto allocator = ::mallinfo2();
    return allocator.uordblks + allocator.hblkhd;
}

QStringList entriesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

ResourceUse ResourceUse::now() {
    ResourceUse use;
    use.heapBytes = allocatedBytes();
    use.descriptors = static_cast<std::size_t>(entriesOf("/proc/self/fd").size());
    for (const QString& thread : entriesOf("/proc/self/task")) {
        ++use.threads;
        QFile children(QString("/proc/self/task/%1/children").arg(thread));
        if (children.open(QIODevice::ReadOnly)) {
            const QString ids = QString::fromLatin1(children.readAll());
            use.children += static_cast<std::size_t>(ids.split(' ', Qt::SkipEmptyParts).size());
        }
    }
    return use;
}

QString ResourceUse::text() const {
    return QString("%1 KiB of heap, %2 descriptors, %3 threads, %4 children")
        .arg(heapBytes / 1024)
        .arg(descriptors)
        .arg(threads)
        .arg(children);
}

} // namespace kx
