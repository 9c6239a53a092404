#include "tests/doubles/control_names.h"

#include <fstream>

namespace zentar {

std::map<int, std::string> ReadControlNames() {
    std::map<int, std::string> names;
    std::ifstream header(std::string(ZENTAR_TEST_SOURCE_DIR) + "/ui/resource.h");
    std::string word;
    while (header >> word) {
        if (word != "#define")
            continue;
        std::string name;
        int id = 0;
        if (!(header >> name >> id)) {
            header.clear();
            continue;
        }
        const bool named =
            name.starts_with("IDC_") || name.starts_with("IDM_") || name.starts_with("IDW_");
        if (named)
            names[id] = name.substr(4);
    }
    return names;
}

std::string NameOf(const std::map<int, std::string>& names, int id) {
    const auto name = names.find(id);
    return name == names.end() ? "#" + std::to_string(id) : name->second;
}

}  // namespace zentar
