// A folder of its own for a test, gone with everything in it when the test ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tavelo::test {

class TempFolder {
  public:
    TempFolder() {
        std::random_device random;
        do
            path_ = std::filesystem::temp_directory_path() / ("tavelo-" + std::to_string(random()));
        while (!std::filesystem::create_directory(path_));
    }
    ~TempFolder() {
        std::error_code ignored; // nothing to be done about it
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // The full path of a name in the folder, as UTF-8.
    [[nodiscard]] std::string file(std::string_view name) const {
        const std::u8string path = (path_ / std::u8string(name.begin(), name.end())).u8string();
        return {path.begin(), path.end()};
    }
    // Writes the bytes as they are and gives the full path.
    std::string write(std::string_view name, std::string_view bytes) const {
        std::ofstream stream(path_ / std::u8string(name.begin(), name.end()), std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        if (!stream) throw std::runtime_error("cannot write a test's file");
        return file(name);
    }

  private:
    std::filesystem::path path_;
};

} // namespace tavelo::test
