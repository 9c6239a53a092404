// The registry contract, kept by Windows; and what others may have written there.
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/win32/elevated_registry.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_text.h"
#include "tests/contract/registry_contract.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

constexpr const wchar_t* kKey = L"Software\\Zentar Test";

void RemoveKey() {
    for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
        HKEY software = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software", 0, KEY_ALL_ACCESS | view, &software) ==
            ERROR_SUCCESS) {
            const UniqueKey owned(software);
            RegDeleteTreeW(software, L"Zentar Test");
        }
    }
}

class Win32RegistryWorld : public RegistryWorld {
  public:
    Win32RegistryWorld() { RemoveKey(); }
    ~Win32RegistryWorld() override { RemoveKey(); }
    Win32RegistryWorld(const Win32RegistryWorld&) = delete;
    Win32RegistryWorld& operator=(const Win32RegistryWorld&) = delete;

    Registry& TheRegistry() override { return ThePlatform().Services().registry; }
    std::string Key() const override { return Narrow(kKey); }
};

std::unique_ptr<RegistryWorld> MakeWin32RegistryWorld() {
    return std::make_unique<Win32RegistryWorld>();
}

using Bytes = std::vector<BYTE>;

class Win32RegistryValues : public testing::Test {
  protected:
    // What another program wrote.
    static void Put(DWORD type, const Bytes& bytes, REGSAM view = KEY_WOW64_32KEY) {
        HKEY made = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_ALL_ACCESS | view,
                                  nullptr, &made, nullptr),
                  ERROR_SUCCESS);
        const UniqueKey owned(made);
        ASSERT_EQ(
            RegSetValueExW(made, L"value", 0, type, bytes.data(), static_cast<DWORD>(bytes.size())),
            ERROR_SUCCESS);
    }
    static Bytes BytesOf(const std::wstring& text) {
        const auto* first = reinterpret_cast<const BYTE*>(text.data());
        return {first, first + text.size() * sizeof(wchar_t)};
    }
    std::optional<std::string> Read() {
        return world_.TheRegistry().ReadString(world_.Key(), "value");
    }

    static std::vector<std::string> ScriptsInTheTemporaryFolder() {
        std::vector<std::string> scripts;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::temp_directory_path())) {
            if (entry.path().extension() == ".reg" &&
                entry.path().filename().string().starts_with("zentar-")) {
                scripts.push_back(entry.path().string());
            }
        }
        return scripts;
    }

    Win32RegistryWorld world_;
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Win32, RegistryContract, testing::Values(&MakeWin32RegistryWorld));

TEST_F(Win32RegistryValues, ATextEndsAtItsFirstNulOrWithItsBytes) {
    Put(REG_SZ, BytesOf(std::wstring(L"text\0more\0", 10)));
    EXPECT_EQ(Read(), "text");
    Put(REG_SZ, BytesOf(L"no end"));
    EXPECT_EQ(Read(), "no end");
    Put(REG_SZ, BytesOf(std::wstring(1, L'\0')));
    EXPECT_EQ(Read(), "");
    Put(REG_SZ, {});
    EXPECT_EQ(Read(), "");
    Put(REG_SZ, {'a', 0, 'b'});
    EXPECT_EQ(Read(), "a");
    Put(REG_SZ, BytesOf(std::wstring(100'000, L'x')));
    EXPECT_EQ(Read(), std::string(100'000, 'x'));
}

TEST_F(Win32RegistryValues, OtherTypesAreNoText) {
    for (const DWORD type : {DWORD{REG_NONE}, DWORD{REG_EXPAND_SZ}, DWORD{REG_BINARY},
                             DWORD{REG_DWORD}, DWORD{REG_MULTI_SZ}, DWORD{REG_QWORD}, DWORD{99}}) {
        Put(type, BytesOf(std::wstring(L"12\0", 3)));
        EXPECT_EQ(Read(), std::nullopt) << type;
    }
}

TEST_F(Win32RegistryValues, TheViewIsThatOfProgramsOf32Bits) {
    Put(REG_SZ, BytesOf(L"64"), KEY_WOW64_64KEY);
    EXPECT_EQ(Read(), std::nullopt);
    Put(REG_SZ, BytesOf(L"32"), KEY_WOW64_32KEY);
    EXPECT_EQ(Read(), "32");
}

TEST_F(Win32RegistryValues, ATextIsWrittenAsAPlainString) {
    ASSERT_TRUE(world_.TheRegistry().WriteStrings(world_.Key(), {{"value", "0"}}).Ok());
    HKEY opened = nullptr;
    ASSERT_EQ(
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, KEY_QUERY_VALUE | KEY_WOW64_32KEY, &opened),
        ERROR_SUCCESS);
    const UniqueKey owned(opened);
    DWORD type = 0;
    wchar_t text[8] = {};
    DWORD bytes = sizeof text;
    EXPECT_EQ(
        RegQueryValueExW(opened, L"value", nullptr, &type, reinterpret_cast<BYTE*>(text), &bytes),
        ERROR_SUCCESS);
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(std::wstring(text), L"0");
}

TEST_F(Win32RegistryValues, WhateverStandsThereDoesNoHarm) {
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<int> length(0, 64);
    for (int round = 0; round < 500; ++round) {
        Bytes bytes(static_cast<std::size_t>(length(random)));
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<BYTE>(byte(random)); });
        const DWORD type = round % 2 == 0 ? REG_SZ : static_cast<DWORD>(byte(random) % 12);
        Put(type, bytes);
        const std::optional<std::string> read = Read();
        EXPECT_EQ(read.has_value(), type == REG_SZ) << "round " << round;
        if (read) {
            EXPECT_EQ(read->find('\0'), std::string::npos);
            EXPECT_LE(read->size(), 3 * bytes.size());
        }
    }
}

TEST_F(Win32RegistryValues, AnAdministratorWritesTheSame) {
    const std::string folder = "C:\\Spiele \xD0\x94\\a \"b\" %c%\\";
    ASSERT_TRUE(WriteStringsAsAdministrator(world_.Key(),
                                            {{"value", folder}, {"the \"other\"", ""}}, nullptr)
                    .Ok());
    EXPECT_EQ(Read(), folder);
    EXPECT_EQ(world_.TheRegistry().ReadString(world_.Key(), "the \"other\""), "");
    const std::vector<std::string> left = ScriptsInTheTemporaryFolder();
    EXPECT_TRUE(left.empty()) << left.front();
}

TEST_F(Win32RegistryValues, NoHandleStaysOpen) {
    const int keys = UniqueKey::Live();
    EXPECT_TRUE(world_.TheRegistry().WriteStrings(world_.Key(), {{"value", "0"}}).Ok());
    EXPECT_EQ(Read(), "0");
    EXPECT_EQ(world_.TheRegistry().ReadString("Software\\No Such Key", "value"), std::nullopt);
    EXPECT_EQ(UniqueKey::Live(), keys);
}

}  // namespace zentar
