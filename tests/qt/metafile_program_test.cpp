// The program that draws metafiles, against files and neighbours that mean harm.

#include "apps/metafile/confinement.h"
#include "apps/metafile/harmless_svg.h"
#include "metafile/enhanced_types.h"
#include "metafile/enhanced_writer.h"
#include "qt/ports/metafile_drawing.h"
#include "tests/qt/test.h"

#include <QProcess>

#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

std::span<const std::uint8_t> Wide(const QString& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.utf16()), static_cast<std::size_t>(2 * text.size())};
}

// Draws a text in a typeface, in black, and a blue square.
QByteArray MetafileWithText(const QString& face, const QString& text)
{
    EnhancedWriter writer(100, 100);
    writer.AddFont(1, {-40, 0, 0, 0, 400}, {}, Wide(face));
    writer.Add(enhanced_types::selectObject, {1});
    writer.AddText(0, 0, Wide(text));
    writer.Add(enhanced_types::createBrush, {2, 0, 0xFF0000, 0});
    writer.Add(enhanced_types::selectObject, {2});
    writer.Add(enhanced_types::rectangle, {50, 50, 100, 100});
    const std::vector<std::uint8_t> bytes = writer.Finish();
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

QImage Drawn(const QByteArray& metafile)
{
    return DrawMetafile(MetafileProgram(), metafile, {100, 100}, 30s).image;
}

qsizetype CountOf(QRgb color, const QImage& image)
{
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
    return std::count(pixels, pixels + image.sizeInBytes() / 4, color);
}

TEST(MetafileProgram, OpensNoPathThatATextOrTypefaceBringsIn)
{
    const QTemporaryDir directory;
    const QString secret = directory.filePath("secret.png");
    QImage red(100, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    red.save(secret);
    const QString pipe = directory.filePath("pipe");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit(), 0600), 0);
    const QString image = QStringLiteral(R"(<image width="100" height="100" xlink:href="%1"/>)");
    const QString svg = QStringLiteral(R"(<svg xmlns:xlink="http://www.w3.org/1999/xlink">%1</svg>)");
    const QString inside = QString::fromLatin1(svg.arg(image.arg(secret)).toUtf8().toBase64());
    for (const QString& address :
         {secret, "file://" + secret, pipe, QStringLiteral("/dev/zero"), "data:image/svg+xml;base64," + inside,
          "data:image/png;base64,iVBORw0KGgo;base64," + inside}) {
        const QString text = "x]]></text>" + image.arg(address) + "<text><![CDATA[y";
        const QImage drawn = Drawn(MetafileWithText("Arial", text));
        EXPECT_EQ(CountOf(0xFFFF0000, drawn), 0) << address.toStdString();
        EXPECT_GT(CountOf(0xFF0000FF, drawn), 2'000) << address.toStdString() << ": the rest is drawn";
    }
    EXPECT_GT(CountOf(0xFF000000, Drawn(MetafileWithText("Arial", QStringLiteral(u"\u00C4\u0416")))), 200)
        << "letters, with nothing to be opened any more";
}

TEST(MetafileProgram, LeavesOutWhatLeadsOutOfAnSvg)
{
    const auto cleaned = [](const QByteArray& inner) {
        return HarmlessSvg("<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>" +
                           inner + "<path d='M0,0'/></svg>");
    };
    for (const char* inner :
         {"<image xlink:href='/secret'/>", "<image href='/secret'/>", "<image xlink:href='data:image/svg+xml,secret'/>",
          "<image xlink:href='data:image/png;base64,iVBORw0KGgo,secret'/>", "<use xlink:href='#secret'/>",
          "<?xml-stylesheet type='text/css' href='/secret'?>", "<style>@import '/secret'</style>",
          "<a xlink:href='/secret'/>", "<script>secret</script>", "<g xml:base='/secret'/>"}) {
        const QByteArray svg = cleaned(inner);
        EXPECT_FALSE(svg.contains("secret")) << inner;
        EXPECT_TRUE(svg.contains("<path d=\"M0,0\"")) << inner;
    }
    EXPECT_TRUE(cleaned("<image xlink:href='data:image/png;base64,iVBORw0KGgoAAA=='/>").contains("iVBORw0KGgoAAA"));
    EXPECT_TRUE(cleaned("<text>no end").isEmpty());
}

TEST(MetafileProgram, CanOpenConnectAndStartNothingOnceItDraws)
{
    EXPECT_EXIT(
        {
            const bool isFiltered = ForbidAllButDrawing();
            const bool opens = open("/dev/null", O_RDONLY) >= 0 || socket(AF_UNIX, SOCK_STREAM, 0) >= 0;
            const bool starts = isFiltered && (fork() >= 0 || execl("/bin/true", "true", nullptr) == 0 ||
                                               kill(getppid(), 0) == 0 || mkdir("/tmp", 0700) == 0 || errno != EPERM);
            _exit(opens ? 1 : starts ? 2 : 0);
        },
        testing::ExitedWithCode(0), "");
}

TEST(MetafileProgram, HasLittleMemoryAndTime)
{
#ifndef __SANITIZE_ADDRESS__ // which takes terabytes of addresses
    EXPECT_EXIT(
        {
            ConfineThisProcess(60s);
            _exit(mmap(nullptr, std::size_t{2} << 30, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED ? 0
                                                                                                                   : 1);
        },
        testing::ExitedWithCode(0), "");
#endif
    EXPECT_EXIT(
        {
            ConfineThisProcess(60s);
            while (std::clock() >= 0) {
            }
        },
        testing::KilledBySignal(SIGKILL), "")
        << "by its processor time, long before the clock";
}

TEST(MetafileProgram, EndsByItselfAndWithWhoStartedIt)
{
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    QProcess starter;
    starter.setChildProcessModifier([&] { dup2(ends[1], STDOUT_FILENO); });
    starter.start("/bin/sh", {"-c", "\"$0\" 9 9 60000; exit", MetafileProgram()});
    close(ends[1]);
    starter.write(QByteArray(200'000, '\0')); // more than a pipe takes: once it's gone, the program reads
    while (starter.bytesToWrite() > 0) {
        ASSERT_TRUE(starter.waitForBytesWritten());
    }
    starter.kill();
    pollfd output{ends[0], POLLIN, 0};
    EXPECT_EQ(poll(&output, 1, 20'000), 1) << "with nobody left who writes";
    close(ends[0]);
    starter.waitForFinished();

    QProcess alone;
    alone.start(MetafileProgram(), {"9", "9", "200"});
    EXPECT_TRUE(alone.waitForFinished(20'000) && alone.exitStatus() == QProcess::CrashExit) << "by its alarm";
}

TEST(MetafileDrawing, GivesUpProgramsThatDoNotDraw)
{
    const QTemporaryDir directory;
    const QString stopped = directory.filePath("stopped");
    WriteFile(stopped, "#!/bin/sh\nkill -STOP $$\n");
    QFile::setPermissions(stopped, QFile::ExeOwner | QFile::ReadOwner);
    // It can't be started, draws nothing, fails, draws without end, never ends.
    for (const QString& program : {QStringLiteral("/none"), QStringLiteral("/bin/true"), QStringLiteral("/bin/false"),
                                   QStringLiteral("/usr/bin/yes"), stopped}) {
        const DrawnMetafile drawn = DrawMetafile(program, "metafile", {30, 30}, program == stopped ? 100ms : 20s);
        EXPECT_TRUE(drawn.image.isNull() && drawn.time < 10s) << program.toStdString();
    }
}

} // namespace
