// quor-view-tool render: a view as a picture.

#include "apps/tool/view_renderer.h"
#include "apps/tool/view_tool.h"
#include "posix/disk_files.h"
#include "tests/qt/picture_of.h"
#include "tests/qt/test.h"

#include <QCoreApplication>
#include <QProcess>

namespace {

class Render : public testing::Test {
protected:
    int Run(const QString& view, const std::vector<std::string>& options)
    {
        DiskFiles files;
        std::ostringstream out;
        const std::unique_ptr<ViewRenderer> renderer = MakeViewRenderer();
        std::vector<std::string> words = {"render", view.toStdString(), target.toStdString()};
        words.insert(words.end(), options.begin(), options.end());
        errors.str("");
        return ViewTool(files, out, errors, renderer.get()).Run(words);
    }

    QImage Rendered(const char* sample, const std::vector<std::string>& options)
    {
        EXPECT_EQ(Run(QStringLiteral(QUOR_TEST_DATA "/samples/") + sample, options), 0) << errors.str();
        return QImage(target);
    }

    QTemporaryDir directory;
    QString target = directory.filePath("view.png");
    std::ostringstream errors;
};

TEST_F(Render, StatusElementsShowTheStateAndTheScaleIsTheSize)
{
    const auto greens = [](const QImage& image) {
        return SumOf(image,
                     [](QRgb pixel) { return qGreen(pixel) > 200 && qRed(pixel) < 100 && qBlue(pixel) < 100 ? 1 : 0; });
    };
    const QImage off = Rendered("round_led.qvw", {"--state", "off"});
    const QImage on = Rendered("round_led.qvw", {"--state", "on"});
    const QImage fine = Rendered("round_led.qvw", {"--scale", "2", "--state", "on"});
    EXPECT_EQ(Rendered("round_led.qvw", {}), off) << "as loaded";
    EXPECT_GT(greens(on), greens(off) + 50);
    EXPECT_EQ(fine.size(), 2 * on.size());
    EXPECT_NEAR(greens(fine), 4 * greens(on), 2 * greens(on));
    EXPECT_EQ(Rendered("round_led.qvw", {"--size", "50x40", "--scale", "1.5"}).size(), QSize(75, 60));
}

// To the last row and column, whatever the size is rounded to.
TEST_F(Render, AnEmptyViewIsItsGround)
{
    for (const std::vector<std::string>& options : {std::vector<std::string>{},
                                                    {"--scale", "1.405", "--size", "1000x700"},
                                                    {"--scale", "0.33", "--size", "100x101"},
                                                    {"--scale", "7.77", "--size", "31x17"}}) {
        const QImage image = Rendered("empty.qvw", options);
        QImage ground(image.size(), image.format());
        ground.fill(0xFFC0C0C0);
        EXPECT_EQ(image, ground) << image.width() << " x " << image.height();
    }
}

TEST_F(Render, AScaleBelowOneShrinksTheWholeView)
{
    const QImage whole = Rendered("transmitter_site.qvw", {});
    const QImage half = Rendered("transmitter_site.qvw", {"--scale", "0.5"});
    const QImage expected = whole.scaled(half.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_NEAR(half.width(), whole.width() / 2, 1);
    EXPECT_LT(MeanDifference(half, expected), 8);
}

TEST_F(Render, TellsWhichPicturesAreMissing)
{
    Rendered("picture.qvw", {});
    const std::string told = errors.str();
    EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 2) << told;
    for (const char* name : {"coast.jpg", "logo.bmp"}) {
        EXPECT_NE(told.find(name + std::string(" isn't shown: File not found\n")), std::string::npos) << told;
    }
    Rendered("round_led.qvw", {});
    EXPECT_EQ(errors.str(), "");
}

// The toolkit's folder of the run is made in it where the session has none.
TEST_F(Render, LeavesNothingInTheTemporaryFolder)
{
    const QTemporaryDir temporary;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("XDG_RUNTIME_DIR");
    environment.insert("TMPDIR", temporary.path());
    const QString programs = QCoreApplication::applicationDirPath();
    const struct {
        QString program;
        QStringList arguments;
        QString input;
    } cases[] = {{"/quor-view-tool", {"render", QUOR_TEST_DATA "/samples/round_led.qvw", target}, "/dev/null"},
                 {"/quor-draw-metafile", {"60", "80", "30000"}, QUOR_TEST_DATA "/pictures/door.emf"}};
    for (const auto& each : cases) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setStandardInputFile(each.input);
        process.start(programs + each.program, each.arguments);
        process.waitForFinished();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        EXPECT_TRUE(QDir(temporary.path()).isEmpty()) << each.program.toStdString();
    }
}

TEST_F(Render, RefusesInOneLineAndWritesNothing)
{
    const QString good = QStringLiteral(QUOR_TEST_DATA "/samples/empty.qvw");
    const struct {
        QString view;
        std::vector<std::string> options;
    } cases[] = {{"/none.qvw", {}},         {good, {"--scale"}},
                 {good, {"--scale", "0"}},  {good, {"--scale", "nan"}},
                 {good, {"--scale", "2x"}}, {good, {"--state", "maybe"}},
                 {good, {"--size", "10"}},  {good, {"--size", "20000x20000"}},
                 {good, {"more.png"}},      {QStringLiteral(QUOR_TEST_DATA "/pictures/door.emf"), {}}};
    for (const auto& each : cases) {
        EXPECT_EQ(Run(each.view, each.options), 2) << each.view.toStdString();
        const std::string told = errors.str();
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
        EXPECT_FALSE(QFile::exists(target));
    }
}

} // namespace
