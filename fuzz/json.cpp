// A view as JSON: what can be built is dumped as JSON that builds the same view, and so does its file.

#include "apps/tool/desk.h"
#include "apps/view_json/view_json.h"
#include "fuzz/harness.h"
#include "tests/support/fake_files.h"

#include <nlohmann/json.hpp>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quor;
    FakeFiles files;
    Desk built(files);
    try {
        ViewFromJson(ParseJson(TextOf(data, size)), built.View());
    } catch (const Failure&) {
        return 0;
    }
    const std::string dumped = JsonText(ViewToJson(built.View()));
    Desk again(files);
    ViewFromJson(ParseJson(dumped), again.View());
    Require(JsonText(ViewToJson(again.View())) == dumped, "a view that is built from its dump is dumped as that");
    files.Put(built.View().BGPicture(), {}); // a background that isn't there would be dropped
    built.Save("view");
    Desk loaded(files);
    loaded.Load("view");
    Require(JsonText(ViewToJson(loaded.View())) == dumped, "a view that is saved and loaded is dumped as before");
    return 0;
}
