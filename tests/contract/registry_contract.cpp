#include "tests/contract/registry_contract.h"

#include "tests/doubles/memory_registry.h"

namespace zentar {

TEST_P(RegistryContract, AValueThatIsNotThereIsNone) {
    EXPECT_EQ(TheRegistry().ReadString(Key(), "none"), std::nullopt);
    EXPECT_TRUE(TheRegistry().WriteStrings(Key(), {{"one", "1"}}).Ok());
    EXPECT_EQ(TheRegistry().ReadString(Key(), "none"), std::nullopt);
    EXPECT_EQ(TheRegistry().ReadString(Key() + "\\deeper", "one"), std::nullopt);
}

TEST_P(RegistryContract, WhatIsWrittenIsReadAndReplaced) {
    const std::string deep = Key() +
                             "\\with blanks\\Gr\xC3\xB6\xC3\x9F"
                             "e";
    for (const char* text : {"0", "", "D:\\setup\\", "C:\\Spiele \xD0\x94\\\"x\"\\", " blanks "}) {
        EXPECT_TRUE(TheRegistry().WriteStrings(deep, {{"a value", text}, {"another", "x"}}).Ok());
        EXPECT_EQ(TheRegistry().ReadString(deep, "a value"), text);
        EXPECT_EQ(TheRegistry().ReadString(deep, "another"), "x");
    }
    EXPECT_EQ(TheRegistry().ReadString(Key(), "a value"), std::nullopt);
}

namespace {

class MemoryRegistryWorld : public RegistryWorld {
  public:
    Registry& TheRegistry() override { return registry_; }
    std::string Key() const override { return "Software\\Zentar Test"; }

  private:
    MemoryRegistry registry_;
};

std::unique_ptr<RegistryWorld> MakeMemoryRegistryWorld() {
    return std::make_unique<MemoryRegistryWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, RegistryContract, testing::Values(&MakeMemoryRegistryWorld));

}  // namespace zentar
