// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/Document.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <sys/resource.h>

#include <cstdio>

namespace {

/** A window shows no more of a large page at once. */
constexpr QSize largest(2000, 2000);
constexpr rlim_t mostSeconds = 60;

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

void paintFirstPage(const Document &document)
{
    QImage image(document.sizeOf(0).toSize().expandedTo({1, 1}).boundedTo(largest),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    if (const PageContent *content = document.contentOf(0))
        content->painter().paint(painter, {0});
}

} // namespace

/**
 * Opens a file and paints its first page at 96 dpi. Writes "refused" or "painted", the processor
 * time in seconds, the most memory in megabytes, and the sentence for the user, between tabs.
 */
int main(int argc, char **argv)
{
    const rlimit limit{mostSeconds, mostSeconds};
    setrlimit(RLIMIT_CPU, &limit);
    const QGuiApplication application(argc, argv);
    Document document;
    QString sentence;
    const bool isOpen = document.open(QString::fromLocal8Bit(argv[1]), &sentence);
    if (isOpen) {
        paintFirstPage(document);
        sentence = document.file().leftOut();
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%s\t%.2f\t%ld\t%s\n", isOpen ? "painted" : "refused",
                seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_maxrss / 1024,
                qUtf8Printable(sentence));
    return 0;
}
