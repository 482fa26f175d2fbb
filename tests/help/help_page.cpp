// SPDX-License-Identifier: GPL-3.0-or-later
#include "help_page.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tavorno::prova {

namespace fs = std::filesystem;

fs::path HelpFolder() {
  return TAVORNO_HELP;
}

std::vector<fs::path> HelpPages() {
  std::vector<fs::path> pages;
  for (const fs::path& folder : {HelpFolder(), HelpFolder() / "Panel"}) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".htm") pages.push_back(entry.path());
    }
  }
  std::ranges::sort(pages);
  return pages;
}

std::string ReadFile(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("missing " + file.string());
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> Attributes(const std::string& page, std::string_view name) {
  std::vector<std::string> values;
  for (std::size_t at = page.find('<'); at != std::string::npos; at = page.find('<', at + 1)) {
    const std::string tag = page.substr(at, page.find('>', at) - at);
    const std::string key = " " + std::string(name) + "=\"";
    const std::size_t start = tag.find(key);
    if (start == std::string::npos) continue;
    const std::size_t value = start + key.size();
    values.push_back(tag.substr(value, tag.find('"', value) - value));
  }
  return values;
}

std::vector<std::string> Contents(const std::string& page, std::string_view open,
                                  std::string_view close) {
  std::vector<std::string> contents;
  for (std::size_t at = page.find(open); at != std::string::npos; at = page.find(open, at)) {
    at += open.size();
    contents.push_back(page.substr(at, page.find(close, at) - at));
  }
  return contents;
}

}  // namespace tavorno::prova
