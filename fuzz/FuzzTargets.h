#pragma once
// What each fuzz harness does with one input, shared by the libFuzzer programs in this folder
// and by the regression tests that replay saved inputs with the normal build. Every entry
// writes only inside the given scratch folder and starts from fresh global records.
#include <cstddef>
#include <cstdint>
#include <string>

namespace fuzz {

// A private folder under $TMPDIR (else /tmp), removed with everything in it at destruction.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

// Writes bytes to path as they are; false when the file cannot be written.
bool WriteBytes(const std::string& path, const uint8_t* data, size_t size);

// Global records back to their initial state, the loaded input forgotten, the benchmark
// trace off, batch mode on (no question is asked and nothing waits for an answer).
void ResetForInput();

// A whole batch translation of the bytes as an NDD file. Returns Translate's result.
int TranslateNdd(const uint8_t* data, size_t size, const std::string& folder);

// A batch translation of the example board with the bytes as its "traces" file, or as its
// layout.hkp. boardPath names the board (examples/board.ndd of the source tree).
int TranslateWithTraces(const uint8_t* data, size_t size, const std::string& folder,
                        const std::string& boardPath);
int TranslateWithHkp(const uint8_t* data, size_t size, const std::string& folder,
                     const std::string& boardPath);

// A batch translation of a copy of the example board in folder, with the bytes as the IBIS
// file of its active part (IBISModels/SN74LVC1G14.ibs beside the copy), which takes part in
// the IBIS step as if chosen in the dialog, so that its circuit block is written from the file.
int TranslateWithIbis(const uint8_t* data, size_t size, const std::string& folder,
                      const std::string& boardPath);

// The bytes loaded as a translation log, then a batch translation of a copy of the example
// board in folder under the settings and nets that the log restored. The names the log gives
// are read from but never written to: the output goes to folder.
int TranslateWithLog(const uint8_t* data, size_t size, const std::string& folder,
                     const std::string& boardPath);

// The bytes as the IBIS file of a five-pin part whose power, ground and no-connect pins are
// put in groups and saved, as the pin mapping dialog does, then read back. Returns 1 when the
// file was saved.
int SavePinMapping(const uint8_t* data, size_t size, const std::string& folder);

}  // namespace fuzz
