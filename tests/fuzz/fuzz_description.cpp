#include "tests/fuzz/DescribedUse.h"
#include "tests/fuzz/DescriptionMutator.h"

#include <QApplication>

#include <algorithm>

extern "C" {

size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The platform says with every window what it cannot do.
    qputenv("QT_LOGGING_RULES", "*=false");
    // Some 100 widgets a run, and each would ask for the accessibility bus.
    qputenv("QT_ACCESSIBILITY", "0");
    // Never deleted: the fuzzer ends the process where it stands.
    new QApplication(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useDescription(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}

size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned int seed)
{
    // Bytes that are changed at random are most often no document any more, and then nothing of
    // the toolbar is reached; a part of them keeps the parser honest.
    constexpr unsigned int shareOfBytes = 8;
    if (seed % shareOfBytes == 0)
        return LLVMFuzzerMutate(data, size, maxSize);

    const QByteArray document(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QByteArray mutated = DescriptionMutator(seed).mutated(document);
    if (mutated.isEmpty() || static_cast<size_t>(mutated.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::copy(mutated.begin(), mutated.end(), reinterpret_cast<char *>(data));
    return static_cast<size_t>(mutated.size());
}

} // extern "C"
