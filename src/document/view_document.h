#pragma once
// The view document: a view's own properties, its eleven collections and the order of its elements on the canvas.

#include "base/property.h"
#include "base/values.h"
#include "document/collection.h"
#include "platform/pictures.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace quor {

class Canvas;
class ContainerReader;
class Files;
class LoadProgress;
class MessageBoxes;
class OpenFile;
class Reporter;
class ScratchFile;
class Timer;
class Timers;
struct Live;
struct RecordView;

// What a document uses of the world around it.
struct ViewPorts {
    Files& files;
    MessageBoxes& boxes;
    Reporter& reporter;
    Timers& timers;
    Pictures& pictures;
    LoadProgress& progress;
    Live& live;
};

// How the last load ended.
enum class LoadVerdict { Ok, Missing, WrongFile, Newer, OldVersion, Corrupt, Failure };

class clsCustView {
public:
    static constexpr std::size_t collectionCount = 11;

    Property<"BGColor", Color> BGColor;
    Property<"BGPicMode", std::int32_t> BGPicMode; // see picture_modes
    Property<"ViewName", std::string> ViewName;
    Property<"ViewCategory", std::string> ViewCategory{"General"};
    Property<"BGPicture", std::string> BGPicture; // a path, empty for none

    clsCustView(const ViewPorts& ports, Canvas& canvas);
    ~clsCustView();
    clsCustView(const clsCustView&) = delete;
    clsCustView& operator=(const clsCustView&) = delete;

    // Stores the value and applies it to the canvas. A picture that can't be loaded fails.
    template <class P> void Set(P clsCustView::*property, typename P::Value value)
    {
        PropertyAccess::Value(this->*property) = std::move(value);
        Written(this->*property);
    }

    Canvas& MyControl() const noexcept { return m_canvas; }

    // Opens the file into this fresh document. True if the view was built and is visible; whatever else happens has
    // been told to the user. An old file is converted after a question, and loads by itself a moment later.
    bool LoadFile(const std::string& path);
    LoadVerdict Verdict() const noexcept { return m_verdict; }

    // True if the target was written; a failure has been told to the user and leaves the target as it was.
    bool SaveFile(const std::string& path);

    // Saves to a scratch file, which is the caller's to delete. Gives its path, empty after a failure, which has been
    // told to the user.
    std::string SaveScratch();

    // New, empty collections and a new order.
    void ClearAll();

    std::int32_t GetCount() const noexcept;
    // Exactly this name, in any collection.
    bool FindName(std::string_view name) const noexcept;

    // Of a kind's type, 0 to 10; 9 for another.
    Collection& CollectionOf(std::int32_t type) const;
    const ElementOrder& CtlOrder() const noexcept { return *m_order; }

    // Moves an element to one end of the order, and its widget with it. Fails with 5 for an unknown name.
    void Reorder(const std::string& name, bool toFront);

    // Sets the canvas's scroll maxima to what the elements need and 120 twips more.
    void SizeScrollBars();
    void SetAllVisible(bool visible);
    void RefreshAll();
    // Repaints the widgets that show what lies behind them.
    void RepaintAll();

    // Of the view's own record.
    void ReadFromArray(std::span<const std::uint8_t> payload);
    void Fields(FieldWalk& record);

private:
    void Written(const decltype(BGColor)&);
    void Written(const decltype(BGPicMode)&);
    void Written(const decltype(ViewName)&) {}
    void Written(const decltype(ViewCategory)&);
    void Written(const decltype(BGPicture)&);
    void SetBackground(const std::string& path, std::int32_t mode);
    void HideBackground();
    void ShowPlainGround();
    void ShowMessage(const std::string& path, std::string_view words);

    bool Open(const std::string& path, std::unique_ptr<OpenFile>& file);
    LoadVerdict Examine(ContainerReader& reader);
    void ReadRecords(ContainerReader& reader);
    void ReadRecord(const RecordView& record, std::string_view name);
    bool Save(const std::function<void(const ScratchFile&)>& copy);
    void WriteContainer(OpenFile& file);

    void AskToUpgrade(const std::string& path, const std::string& name, int version);
    void StartUpgrade(const std::string& path, int version);
    void FinishUpgrade(std::span<const std::uint8_t> bytes, const std::string& path);
    void m_LoadViewTimer_Timer();

    ViewPorts m_ports;
    Canvas& m_canvas;
    std::array<std::unique_ptr<Collection>, collectionCount> m_collections; // by type
    std::shared_ptr<ElementOrder> m_order;
    LoadVerdict m_verdict = LoadVerdict::Ok;
    std::string FilePath; // of the deferred reload
    std::unique_ptr<Timer> m_LoadViewTimer;
    Subscription m_reload;
};

} // namespace quor
