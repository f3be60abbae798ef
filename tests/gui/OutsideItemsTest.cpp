#include "gui/app/ClipboardPaths.h"
#include "gui/app/SingleInstance.h"

#include "support/TempTree.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::TempTree;

namespace {

TEST(ClipboardPaths, TakeWhatFileManagersCopyAndAbsolutePathsAsText)
{
    QMimeData gnome;
    gnome.setData(QStringLiteral("x-special/gnome-copied-files"),
        "copy\nfile:///home/ann/a%20b.jpg\nfile:///home/ann/dir/\n");
    EXPECT_EQ(pathsFromClipboard(&gnome),
        QStringList({ QStringLiteral("/home/ann/a b.jpg"), QStringLiteral("/home/ann/dir") }));

    QMimeData uris;
    uris.setUrls({ QUrl::fromLocalFile(QStringLiteral("/x/é.txt")),
        QUrl(QStringLiteral("https://example.org/f")), QUrl::fromLocalFile(QStringLiteral("/x/é.txt")) });
    EXPECT_EQ(pathsFromClipboard(&uris), QStringList({ QStringLiteral("/x/é.txt") }))
        << "remote and repeated dropped";

    QMimeData text;
    text.setText(QStringLiteral("/srv/photos/../a.png\n  relative/b.png\nfile:///srv/c.png\n"));
    EXPECT_EQ(pathsFromClipboard(&text),
        QStringList({ QStringLiteral("/srv/a.png"), QStringLiteral("/srv/c.png") }));

    QMimeData prose;
    prose.setText(QStringLiteral("just some words"));
    EXPECT_TRUE(pathsFromClipboard(&prose).isEmpty());
    EXPECT_TRUE(pathsFromClipboard(nullptr).isEmpty());
}

TEST(SingleInstance, ALaterLaunchHandsItsPathsToTheRunningOne)
{
    TempTree tree;
    const QString name = tree.path(QStringLiteral("instance"));
    SingleInstance later(name);
    EXPECT_FALSE(later.forwardToRunningInstance({ QStringLiteral("/a") }, 200)) << "nobody is listening yet";

    SingleInstance running(name);
    ASSERT_TRUE(running.listen());
    QSignalSpy received(&running, &SingleInstance::pathsReceived);
    const QStringList paths { QStringLiteral("/home/ann/é 1.jpg"), QStringLiteral("/home/ann/2.jpg") };
    ASSERT_TRUE(later.forwardToRunningInstance(paths));
    ASSERT_TRUE(received.wait(5000));
    EXPECT_EQ(received.first().first().toStringList(), paths);
}

TEST(SingleInstance, ASocketLeftByACrashedInstanceIsTakenOver)
{
    TempTree tree;
    const QString name = tree.path(QStringLiteral("instance"));
    tree.file(QStringLiteral("instance"));
    SingleInstance running(name);
    EXPECT_TRUE(running.listen());
}

} // namespace
