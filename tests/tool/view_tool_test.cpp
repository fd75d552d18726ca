#include "base/text.h"
#include "posix/disk_files.h"
#include "tests/test.h"
#include "tests/tool/tool_case.h"

#include <fcntl.h>
#include <unistd.h>

namespace {

using Bytes = std::vector<std::uint8_t>;
using Tool = ToolCase;

std::string SampleText(const std::string& name)
{
    const Bytes bytes = Sample(name);
    return {bytes.begin(), bytes.end()};
}

std::string Replaced(std::string text, std::string_view what, std::string_view by)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), by);
}

TEST_F(Tool, ChecksEachFileInALineOfItsOwn)
{
    const std::pair<std::string, const char*> cases[] = {
        {"hostile/wrong_magic.qvw", "wrong-file: "},
        {"hostile/version_4.qvw", "newer: "},
        {"old/v1_mixed.qvw", "old-version"},
        {"hostile/flipped_byte.qvw", "corrupt: "},
        {"hostile/payload_too_short.qvw", "load-failure: BevelStyle needs 4 bytes at offset 26"},
        {"missing.qvw", "load-failure: "},
        {"round_led.qvw", "ok"},
    };
    std::vector<std::string> arguments{"check"};
    for (const auto& [name, verdict] : cases) {
        if (name != "missing.qvw") {
            PutSample(name);
        }
        arguments.push_back(name);
    }
    EXPECT_EQ(Run(arguments), 1);
    std::istringstream lines(out.str());
    for (const auto& [name, verdict] : cases) {
        std::string line;
        std::getline(lines, line);
        EXPECT_TRUE(line.starts_with(name + ": " + verdict)) << line;
    }
    EXPECT_EQ(errors.str(), "");
    EXPECT_EQ(Run({"check", "round_led.qvw"}), 0);
    EXPECT_EQ(out.str(), "round_led.qvw: ok\n");
}

TEST_F(Tool, BuildsDumpsAndResavesTheSameBytes)
{
    for (const std::string name :
         {"empty", "round_led", "leds_30", "rectangular_led", "status_label", "status_picture", "command_with_led",
          "command_button", "picture", "label", "latin1_names", "angular_meter"}) {
        const Bytes sample = Sample(name + ".qvw");
        PutSample(name + ".json");
        EXPECT_EQ(Run({"build", name + ".json", "built.qvw"}), 0) << errors.str();
        EXPECT_EQ(files.Get("built.qvw"), sample);
        EXPECT_EQ(Run({"resave", "built.qvw", "again.qvw"}), 0);
        EXPECT_EQ(files.Get("again.qvw"), sample);
        EXPECT_EQ(Run({"dump", "built.qvw"}), 0);
        files.PutText("dumped.json", out.str());
        EXPECT_EQ(Run({"build", "dumped.json", "built.qvw"}), 0) << errors.str();
        EXPECT_EQ(files.Get("built.qvw"), sample);
    }
}

TEST_F(Tool, KeepsEveryFloatAndEverySizeOfAFont)
{
    const std::tuple<const char*, std::string, std::vector<std::string>> cases[] = {
        {"leds_30.json",
         "\"ObjWidth\": ",
         {"0.1", "-0.0", "\"NaN\"", "\"NaN(7fa00001)\"", "\"NaN(ffc00000)\"", "\"Infinity\"", "\"-Infinity\"",
          "3.4028235e+38", "1e-45", "16777216.0", "12345.678"}},
        {"label.json",
         "\"Size\": ",
         {"8.25", "-0.0001", "\"922337203685477.5807\"", "\"-922337203685477.5808\"", "\"922337203685477.0001\""}},
    };
    for (const auto& [name, key, numbers] : cases) {
        const std::string text = SampleText(name);
        const std::size_t at = text.find(key) + key.size();
        for (const std::string& number : numbers) {
            std::string edited = text;
            files.PutText("a.json", edited.replace(at, text.find(',', at) - at, number));
            ASSERT_EQ(Run({"build", "a.json", "a.qvw"}), 0) << errors.str();
            ASSERT_EQ(Run({"dump", "a.qvw"}), 0);
            EXPECT_NE(out.str().find(key + number + ','), std::string::npos) << number;
        }
    }
}

TEST_F(Tool, SaysThatTheNamesAreTooMany)
{
    const std::string text = Replaced(SampleText("round_led.json"), "LED (Round) 1", std::string(20'000, 'a'));
    files.PutText("a.json", Replaced(text, "LED (Round) 2", std::string(20'000, 'b')));
    EXPECT_EQ(Run({"build", "a.json", "a.qvw"}), 2);
    EXPECT_NE(errors.str().find("names of the elements take more than 32767 bytes"), std::string::npos) << errors.str();
}

TEST(ToolOnTheDisk, TellsFoldersAndOddNamesAndReplacesNothingThatIsNoFile)
{
    DiskFiles files;
    std::ostringstream out;
    std::ostringstream errors;
    const std::string folder = std::filesystem::temp_directory_path() / files.TempName();
    const std::string odd = folder + "/a\n\x1B[2J.qvw";
    std::filesystem::create_directory(folder);
    std::filesystem::copy_file(QUOR_TEST_DATA "/samples/round_led.qvw", odd);
    ViewTool tool(files, out, errors);
    EXPECT_EQ(tool.Run(std::vector<std::string>{"check", folder, odd}), 1);
    EXPECT_EQ(out.str(), folder + ": load-failure: This is a folder.\n" + folder + "/a\\x0a\\x1b[2J.qvw: ok\n");
    const std::string other = folder + "/other";
    const int opened = open(other.c_str(), O_CREAT | O_WRONLY, 0600);
    for (const std::string target : {"/dev/fd/", "/proc/self/fd/"}) {
        EXPECT_EQ(tool.Run(std::vector{std::string("resave"), odd, target + std::to_string(opened)}), 2);
        EXPECT_EQ(std::filesystem::file_size(other), 0U) << target;
    }
    close(opened);
    std::filesystem::remove_all(folder);
}

TEST_F(Tool, NamesTheKeyThatIsWrongAndWritesNothing)
{
    const std::string text = SampleText("round_led.json");
    const struct {
        const char* what;
        const char* by;
        const char* line;
    } cases[] = {
        {"{", "", "Line 2, column 12: from here on this is no JSON."},
        {"{", "[{", "Line 556, column 1: the text ends too early."},
        {"\"Gallery\"", "\"\xFF\"", "Line 3, column 19: from here on this is no JSON."},
        {"\"Unit\": 0", "\"Unit\": 0, \"Unit\": 0", "Elements[0].ClickAction.Unit is there twice."},
        {"\"ObjWidth\": 255.0", "\"ObjWidth\": 1e999", "Elements[0].ObjWidth is out of range."},
        {"\"ObjWidth\": 255.0", "\"ObjWidth\": \"NaN(3f800000)\"", "Elements[0]: ObjWidth is no number."},
        {"\"BGPicMode\"", "\"M\\u001b\\u202e\": 1, \"BGPicMode\"", "M\\x1b\\u202e is no key here."},
        {"\"BGColor\": -2147483633", "\"BGColor\": -2147483649", "BGColor is out of range."},
        {"\"BGColor\": -2147483633", "\"BGColor\": 2147483648", "BGColor is out of range."},
        {"\"BGColor\": -2147483633", "\"BGColor\": 1.5", "BGColor is no whole number."},
        {"\"BGColor\"", "\"Colour\"", "BGColor is missing."},
        {"\"BGPicMode\"", "\"More\": 1, \"BGPicMode\"", "More is no key here."},
        {"\"ViewCategory\": \"", "\"ViewCategory\": \"Ω", "ViewCategory has a character that windows-1252 lacks."},
        {"\"Elements\": [", "\"Elements\": [7, ", "Elements[0]: An object is wanted."},
        {"\"Type\": 3", "\"Type\": 11", "Elements[0]: Type 11 is no kind of element."},
        {"\"AutoInactive\": false", "\"AutoInactive\": 0", "Elements[0]: AutoInactive is neither true nor false."},
        {"\"ObjWidth\": 255.0", "\"ObjWidth\": 1e39", "Elements[0]: ObjWidth is out of range."},
        {"\"ObjWidth\": 255.0", "\"ObjWidth\": \"nan\"", "Elements[0]: ObjWidth is no number."},
        {"\"ObjName\": \"LED (Round) 1\"", "\"ObjName\": 1", "Elements[0]: ObjName is no text."},
        {"\"ObjName\": \"LED (Round) 1\"", "\"ObjName\": \"a\\u0000b\"",
         "Elements[0]: ObjName has a character of the number 0"},
        {"\"LED (Round) 2\"", "\"led (round) 1\"", "Elements[1]: This key is already in use"},
        {"\"Unit\": 0", "\"Unit\": 256", "Elements[0]: ClickAction.Unit is out of range."},
        {"\"CtrlClick\": false", "\"Ctrl\": false", "Elements[0]: ClickAction.CtrlClick is missing."},
    };
    for (const auto& [what, by, line] : cases) {
        files.PutText("a.json", Replaced(text, what, by));
        EXPECT_EQ(Run({"build", "a.json", "out.qvw"}), 2) << by;
        EXPECT_TRUE(errors.str().starts_with(std::string("a.json: ") + line)) << errors.str();
        EXPECT_EQ(errors.str().find('\n'), errors.str().size() - 1);
        EXPECT_EQ(files.Paths(), std::vector<std::string>{"a.json"});
    }
}

TEST_F(Tool, UpgradesOldFilesAlone)
{
    for (const std::string name : {"old/v1_mixed", "old/v2_mixed"}) {
        PutSample(name + ".qvw");
        EXPECT_EQ(Run({"upgrade", name + ".qvw", "out.qvw"}), 0);
        EXPECT_EQ(files.Get("out.qvw"), Sample(name + ".upgraded.qvw"));
        EXPECT_EQ(files.Get(name + ".qvw"), Sample(name + ".qvw"));
    }
    files.Erase("out.qvw");
    for (const char* name :
         {"empty.qvw", "hostile/version_0.qvw", "hostile/version_4.qvw", "hostile/wrong_magic.qvw"}) {
        PutSample(name);
        EXPECT_EQ(Run({"upgrade", name, "out.qvw"}), 2) << name;
        EXPECT_TRUE(errors.str().starts_with(name)) << errors.str();
        EXPECT_FALSE(files.Has("out.qvw"));
    }
}

TEST_F(Tool, SaysWhereWhatItWroteDoesNotLoad)
{
    Bytes longer = Sample("old/v2_mixed.qvw");
    longer.insert(longer.end(), 5, 7); // behind the checksum, where the new one goes
    files.Put("old.qvw", longer);
    EXPECT_EQ(Run({"upgrade", "old.qvw", "out.qvw"}), 1);
    EXPECT_TRUE(errors.str().starts_with("out.qvw: written, but it does not load: corrupt")) << errors.str();
    EXPECT_TRUE(files.Has("out.qvw"));
}

TEST_F(Tool, HasWrittenAlsoWhereAScratchFileStays)
{
    for (const auto& [command, source] : {std::pair{"upgrade", "old/v1_mixed.qvw"}, {"resave", "round_led.qvw"}}) {
        PutSample(source);
        files.planned.Plan("delete", 1, failures::permissionDenied);
        EXPECT_EQ(Run({command, source, "out.qvw"}), 0);
        EXPECT_TRUE(errors.str().starts_with("The scratch file temp/temp")) << errors.str();
        EXPECT_TRUE(files.Has("out.qvw"));
        files.Erase("out.qvw");
    }
}

TEST_F(Tool, LeavesNothingBehindWhereWritingFails)
{
    for (const char* name : {"old/v1_mixed.qvw", "round_led.qvw", "round_led.json"}) {
        PutSample(name);
    }
    files.PutText("out.qvw", "old");
    const std::vector<std::string> before = files.Paths();
    for (const char* operation : {"write", "copy"}) {
        for (const auto& [command, source] :
             {std::pair{"upgrade", "old/v1_mixed.qvw"}, {"resave", "round_led.qvw"}, {"build", "round_led.json"}}) {
            files.planned.Plan(operation, 1, failures::permissionDenied);
            EXPECT_EQ(Run({command, source, "out.qvw"}), 2) << command << operation;
            EXPECT_NE(errors.str().find("cannot save out.qvw: Permission denied"), std::string::npos) << errors.str();
            EXPECT_EQ(files.Text("out.qvw"), "old");
            EXPECT_EQ(files.Paths(), before);
        }
    }
}

TEST_F(Tool, ShowsItsUsageWhereItIsNotUnderstood)
{
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {}, {"check"}, {"dump"}, {"dump", "a", "b"}, {"resave", "a"}, {"bild", "a", "b"}}) {
        EXPECT_EQ(Run(arguments), 2);
        EXPECT_TRUE(errors.str().starts_with("usage: ")) << errors.str();
    }
}

} // namespace
