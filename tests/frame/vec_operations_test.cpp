// Every vector operation of every layer against the instruction, bit for bit; where there is no such processor, against
// outcomes recorded on one. LUM_EXHAUSTIVE=1 adds all 2^32 inputs of rcp14 and rsqrt14, LUM_RECORD=path writes the record.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <thread>

#include "frame/dispatch/processor.h"
#include "operation_inputs.h"
#include "operation_table.h"

namespace lum::test {
namespace {

struct LayerTable {
  std::string name;
  OperationTable table;
};
// The layers that run here, the portable one first and the instructions themselves, where the processor has them, last.
const std::vector<LayerTable>& Layers() {
  static const std::vector<LayerTable> list = [] {
    std::vector<LayerTable> found = {{"portable", PortableTable()}};
#ifdef LUM_TEST_NATIVE
    if (lum::ProcessorRuns(lum::Layer::avx2)) found.push_back({"avx2", Avx2Table()});
    if (lum::ProcessorRuns(lum::Layer::avx512)) found.push_back({"avx512", Avx512Table()});
#endif
    return found;
  }();
  return list;
}
const OperationTable& Portable() { return Layers().front().table; }

bool IsNan(Element element, uint64_t bits) {
  return element == Element::f32 ? (bits & 0x7FFFFFFF) > 0x7F800000
                                 : element == Element::f64 && (bits & 0x7FFFFFFFFFFFFFFF) > 0x7FF0000000000000;
}
uint64_t Quieted(Element element, uint64_t nan) { return nan | (element == Element::f32 ? 0x00400000 : 0x0008000000000000); }

// The NaNs among the operands of a lane, quieted.
std::vector<uint64_t> LaneNans(const Operation& operation, const Operands& operands, int lane) {
  std::vector<uint64_t> nans;
  for (size_t i = 0; i < operation.operands.size(); ++i) {
    const Element element = operation.operands[i];
    if (LaneBytes(element) != LaneBytes(operation.operands[0])) continue;  // has other lanes
    const uint64_t bits = GetLane(operands.vector[i], element, lane);
    if (IsNan(element, bits)) nans.push_back(Quieted(element, bits));
  }
  return nans;
}

// Where two operands of a lane are NaNs and the result is one of them, puts the first in its place: the order of the operands
// within an instruction is the compiler's choice.
void SettleNans(const Operation& operation, const Operands& operands, Outcome& outcome) {
  if (!operation.arithmetic) return;
  const Element element = operation.operands[0];
  for (int lane = 0; lane < 64 / LaneBytes(element); ++lane) {
    const auto nans = LaneNans(operation, operands, lane);
    if (nans.size() < 2) continue;
    for (RawVector& v : outcome.vector)
      for (const uint64_t nan : nans)
        if (GetLane(v, element, lane) == nan) SetLane(v, element, lane, nans[0]);
  }
}

std::string Hexadecimal(const unsigned char* bytes, size_t count) {
  std::ostringstream text;
  for (size_t i = count; i-- > 0;) text << "0123456789abcdef"[bytes[i] >> 4] << "0123456789abcdef"[bytes[i] & 15];
  return text.str();
}
std::string Describe(const Operands& operands, const Outcome& got, const Outcome& expected) {
  std::ostringstream text;
  for (const RawVector& v : operands.vector) text << "operand  " << Hexadecimal(v.bytes, 64) << '\n';
  text << "mask     " << std::hex << operands.mask << '\n';
  for (const RawVector& v : got.vector) text << "got      " << Hexadecimal(v.bytes, 64) << '\n';
  for (const RawVector& v : expected.vector) text << "expected " << Hexadecimal(v.bytes, 64) << '\n';
  return text.str();
}

bool Same(const Outcome& a, const Outcome& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// All layers on the same operands; false, with a failure reported, when one differs from the last.
bool Agree(size_t index, const Operands& operands) {
  const Operation& operation = Portable().operations[index];
  Outcome expected;
  Layers().back().table.operations[index].run(operands, expected);
  SettleNans(operation, operands, expected);
  bool all_same = true;
  for (size_t i = 0; i + 1 < Layers().size(); ++i) {
    Outcome got;
    Layers()[i].table.operations[index].run(operands, got);
    SettleNans(operation, operands, got);
    if (Same(got, expected)) continue;
    ADD_FAILURE() << operation.name << " of layer " << Layers()[i].name << '\n' << Describe(operands, got, expected);
    all_same = false;
  }
  return all_same;
}

uint64_t SeedOf(const std::string& name, uint64_t salt) {
  uint64_t seed = 14695981039346656037u ^ salt;
  for (const char c : name) seed = (seed ^ static_cast<unsigned char>(c)) * 1099511628211u;
  return seed;
}

bool OnFloats(const Operation& operation) {
  return !operation.operands.empty() && (operation.operands[0] == Element::f32 || operation.operands[0] == Element::f64);
}

TEST(VecOperations, SpecialValuesAsTheInstruction) {
  if (Layers().size() < 2) GTEST_SKIP() << "this processor has one layer; the recorded outcomes are compared instead";
  for (size_t i = 0; i < Portable().operations.size(); ++i) {
    const Operation& operation = Portable().operations[i];
    Operands operands{};
    const uint64_t count = SpecialVectors(operation);
    for (uint64_t index = 0; index < count; ++index) {
      FillSpecials(operation, index, operands);
      if (!Agree(i, operands)) break;
    }
  }
}

TEST(VecOperations, RandomValuesAsTheInstruction) {
  if (Layers().size() < 2) GTEST_SKIP() << "this processor has one layer; the recorded outcomes are compared instead";
  uint64_t lanes = 0;
  for (size_t i = 0; i < Portable().operations.size(); ++i) {
    const Operation& operation = Portable().operations[i];
    InputGenerator inputs(SeedOf(operation.name, 1));
    Operands operands{};
    const int count = operation.arithmetic ? 6000 : OnFloats(operation) ? 1500 : 500;
    for (int n = 0; n < count; ++n) {
      inputs.Fill(operation, operands);
      if (!Agree(i, operands)) break;
      lanes += operation.operands.empty() || operation.operands[0] == Element::none
                   ? 1
                   : static_cast<uint64_t>(64 / LaneBytes(operation.operands[0]));
    }
  }
  RecordProperty("random_lanes", std::to_string(lanes));
  EXPECT_GE(lanes, 10'000'000u);
}

TEST(VecOperations, TablesHaveTheSameEntries) {
  std::set<std::string> names;
  for (const Operation& operation : Portable().operations)
    EXPECT_TRUE(names.insert(operation.name).second) << operation.name << " occurs twice";
  for (const LayerTable& layer : Layers()) {
    ASSERT_EQ(layer.table.operations.size(), Portable().operations.size()) << layer.name;
    for (size_t i = 0; i < Portable().operations.size(); ++i)
      EXPECT_EQ(layer.table.operations[i].name, Portable().operations[i].name) << layer.name;
  }
}

// The names of the operations that headers define, in their order.
std::vector<std::string> DefinedOperations(std::initializer_list<std::string> headers) {
  std::vector<std::string> names;
  const std::regex definition(R"((?:LUM_INLINE\w*|\[\[gnu::noinline\]\]) [^(]*?\b(operator[^ (]+|\w+)\()");
  for (const std::string& header : headers) {
    std::ifstream file(std::string(LUM_SOURCE_DIR) + "/src/frame/" + header);
    EXPECT_TRUE(file) << header;
    for (std::string line; std::getline(file, line);) {
      std::smatch match;
      if (std::regex_search(line, match, definition)) names.push_back(match[1]);
    }
  }
  return names;
}
std::vector<std::string> OperationsOfLayer(const std::string& layer) {
  return DefinedOperations({layer + "/base.h", layer + "/arithmetic.h", layer + "/integers.h", layer + "/moves.h"});
}

TEST(VecOperations, EveryOperationOfTheVocabularyHasAnEntry) {
  std::set<std::string> tested;
  for (const Operation& operation : Portable().operations) tested.insert(operation.vocabulary);
  const auto native_names = OperationsOfLayer("avx512");
  ASSERT_GE(native_names.size(), 100u);
  for (const auto& name : native_names) EXPECT_TRUE(tested.count(name)) << name << " has no entry in the table";
  tested.insert("sealed");  // changes nothing
  for (const auto& name : DefinedOperations({"vec_shared.h"})) EXPECT_TRUE(tested.count(name)) << name << " has no entry";
}

TEST(VecOperations, AllLayersDefineTheSameOperationsInTheSameOrder) {
  const std::set<std::string> helpers = {
      "JoinedTable",       "any_in_half",     "any_of_finite", "any_small_product", "by_lane",           "called_div",
      "called_fma",        "called_mul",      "directed_fma",  "each_part_in_two",  "half_with_care",    "high_register",
      "join_registers",    "low_register",    "in_two",        "interleaved",       "load_half",         "negate_every_other",
      "of_unknown_origin", "part_of_product", "raw",           "restore_nan",       "rounded_halves_up", "signed_fma",
      "small_product",     "store_half",      "unsigned_part", "with_care"};
  for (const char* layer : {"portable", "avx2"}) {
    std::vector<std::string> names;
    for (const auto& name : OperationsOfLayer(layer))
      if (!helpers.count(name)) names.push_back(name);
    EXPECT_EQ(names, OperationsOfLayer("avx512")) << layer;
  }
}

TEST(VecOperations, TheVocabularyListsEveryOperation) {
  std::ifstream file(std::string(LUM_SOURCE_DIR) + "/src/frame/vec.h");
  std::set<std::string> listed;
  const std::regex word(R"(\w+)");
  for (std::string line; std::getline(file, line) && line.starts_with("//");)
    for (auto i = std::sregex_iterator(line.begin(), line.end(), word); i != std::sregex_iterator(); ++i)
      listed.insert(i->str());
  for (const auto& names : {OperationsOfLayer("avx512"), DefinedOperations({"vec_shared.h"})})
    for (const auto& name : names)
      EXPECT_TRUE(name.starts_with("operator") || listed.count(name)) << name << " is not in frame/vec.h";
}

// The record: for each entry, checksums of the outcomes over blocks of inputs that every machine generates alike, special
// values and random ones in turn, and the outcome of the first vectors in full for the reader of a failure.
constexpr int recorded_blocks = 24;
constexpr int vectors_in_block = 24;
constexpr int outcomes_in_full = 1;

struct Record {
  std::vector<std::string> outcomes;
  std::vector<uint32_t> checksums;
  bool operator==(const Record&) const = default;
};

std::string InFull(const Outcome& outcome) {
  std::string text = Hexadecimal(outcome.vector[0].bytes, 64);
  text.erase(0, std::min(text.find_first_not_of('0'), text.size() - 1));
  return text;
}

Record RecordOf(const Operation& operation) {
  Record record;
  InputGenerator inputs(SeedOf(operation.name, 2));
  std::mt19937_64 choice(SeedOf(operation.name, 3));
  Operands operands{};
  for (int block = 0; block < recorded_blocks; ++block) {
    uint64_t checksum = 14695981039346656037u;
    for (int n = 0; n < vectors_in_block; ++n) {
      if (n % 2 == 0) inputs.Fill(operation, operands);
      else FillSpecials(operation, choice() % SpecialVectors(operation), operands);
      Outcome outcome;
      operation.run(operands, outcome);
      SettleNans(operation, operands, outcome);
      if (block * vectors_in_block + n < outcomes_in_full) record.outcomes.push_back(InFull(outcome));
      for (const RawVector& v : outcome.vector)
        for (const unsigned char byte : v.bytes) checksum = (checksum ^ byte) * 1099511628211u;
    }
    record.checksums.push_back(static_cast<uint32_t>(checksum ^ checksum >> 32));
  }
  return record;
}

void WriteRecords(const OperationTable& table, const std::string& path) {
  std::ofstream file(path);
  file << "# Written by `LUM_RECORD=FILE build/dev/tests/vec_operations_test`: what each operation gives, outcomes and "
          "checksums.\n";
  for (const Operation& operation : table.operations) {
    const Record record = RecordOf(operation);
    file << operation.name << '\n' << std::hex;
    for (const auto& outcome : record.outcomes) file << "  " << outcome << '\n';
    file << ' ';
    for (const uint32_t checksum : record.checksums) file << ' ' << checksum;
    file << '\n' << std::dec;
  }
  file.flush();
  ASSERT_TRUE(file) << "could not write " << path;
}

std::map<std::string, Record> ReadRecords(const std::string& path) {
  std::map<std::string, Record> records;
  std::ifstream file(path);
  EXPECT_TRUE(file) << "could not read " << path;
  std::string heading;
  std::getline(file, heading);
  for (std::string name, line; std::getline(file, name);) {
    Record& record = records[name];
    for (int i = 0; i < outcomes_in_full && std::getline(file, line); ++i) record.outcomes.push_back(line.substr(2));
    std::getline(file, line);
    std::istringstream words(line);
    for (uint32_t checksum; words >> std::hex >> checksum;) record.checksums.push_back(checksum);
  }
  return records;
}

const std::string record_path = std::string(LUM_SOURCE_DIR) + "/tests/frame/recorded_operations.txt";

void CompareWithRecords(const OperationTable& table) {
  const auto records = ReadRecords(record_path);
  EXPECT_EQ(records.size(), table.operations.size());
  for (const Operation& operation : table.operations) {
    const auto expected = records.find(operation.name);
    ASSERT_NE(expected, records.end()) << operation.name << " is not in the record";
    const Record got = RecordOf(operation);
    EXPECT_EQ(expected->second.checksums.size(), static_cast<size_t>(recorded_blocks));
    EXPECT_EQ(got.outcomes, expected->second.outcomes) << operation.name;
    EXPECT_EQ(got.checksums, expected->second.checksums) << operation.name;
  }
}

TEST(VecOperations, OutcomesAsRecorded) {
  if (const char* path = std::getenv("LUM_RECORD")) WriteRecords(Layers().back().table, path);
  for (const LayerTable& layer : Layers()) {
    SCOPED_TRACE(layer.name);
    CompareWithRecords(layer.table);
  }
}

// Pages of which only the middle one can be touched.
class GuardedPage : public testing::Test {
 protected:
  void SetUp() override {
    size_ = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    pages_ = static_cast<unsigned char*>(mmap(nullptr, 3 * size_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(pages_, MAP_FAILED);
    ASSERT_EQ(mprotect(begin(), size_, PROT_READ | PROT_WRITE), 0);
    for (size_t i = 0; i < size_; ++i) begin()[i] = static_cast<unsigned char>(37 * i + 11);
  }
  void TearDown() override { munmap(pages_, 3 * size_); }
  unsigned char* begin() { return pages_ + size_; }
  unsigned char* end() { return begin() + size_; }

  template <class T> void MasksAtBothEnds(void (*load)(uint32_t, const T*, T*), void (*store)(uint32_t, T*, const T*)) {
    constexpr int lanes = 64 / static_cast<int>(sizeof(T));
    for (int count = 0; count <= lanes; ++count) {
      const uint32_t low = (1u << count) - 1;
      const std::ptrdiff_t bytes = count * static_cast<std::ptrdiff_t>(sizeof(T));
      check<T>(load, store, end() - bytes, low, 0xFFFFFFFF);
      // Only the high lanes lie in the page: the vector begins before it.
      check<T>(load, store, begin() + bytes - 64, low << (lanes - count), 0xFFFFFFFF);
      check<T>(load, store, end() - bytes, low, 0x55555555);
    }
  }
  template <class T>
  void check(void (*load)(uint32_t, const T*, T*), void (*store)(uint32_t, T*, const T*), unsigned char* place, uint32_t mask,
             uint32_t holes) {
    constexpr size_t lanes = 64 / sizeof(T);
    T values[lanes], old[lanes];
    for (size_t i = 0; i < lanes; ++i) old[i] = values[i] = static_cast<T>(100 + i);
    const std::vector<unsigned char> before(begin(), end());
    T* const p = reinterpret_cast<T*>(place);
    load(mask & holes, p, values);
    for (size_t i = 0; i < lanes; ++i) {
      const bool active = (mask & holes) >> i & 1;
      EXPECT_EQ(std::memcmp(&values[i], active ? static_cast<const void*>(p + i) : &old[i], sizeof(T)), 0);
    }
    store(mask & holes, p, old);
    for (size_t i = 0; i < lanes; ++i) {
      if (!(mask >> i & 1)) continue;
      const bool active = holes >> i & 1;
      const auto offset = static_cast<size_t>(reinterpret_cast<unsigned char*>(p + i) - begin());
      EXPECT_EQ(std::memcmp(p + i, active ? static_cast<const void*>(&old[i]) : &before[offset], sizeof(T)), 0);
    }
    std::memcpy(begin(), before.data(), size_);
  }
  template <class T, class Index> void GatherBesideThePage(void (*gather)(uint32_t, const T*, const Index*, T*)) {
    constexpr int lanes = 64 / static_cast<int>(sizeof(T));
    T result[lanes];
    Index index[lanes];
    for (int active = 0; active < lanes; ++active) {
      for (int i = 0; i < lanes; ++i) result[i] = static_cast<T>(i), index[i] = i % 2 ? 1 : -100000;
      index[active] = -1 - active;
      gather(1u << active, reinterpret_cast<const T*>(end()), index, result);
      for (int i = 0; i < lanes; ++i) {
        const T* const read = reinterpret_cast<const T*>(end()) - 1 - active;
        const T kept = static_cast<T>(i);
        EXPECT_EQ(std::memcmp(&result[i], i == active ? read : &kept, sizeof(T)), 0);
      }
    }
  }
  void EveryMaskedOperation(const OperationTable& table) {
    MasksAtBothEnds<float>(table.masked_load_f32, table.masked_store_f32);
    MasksAtBothEnds<double>(table.masked_load_f64, table.masked_store_f64);
    GatherBesideThePage<float>(table.masked_gather_f32);
    GatherBesideThePage<double>(table.masked_gather_f64);
  }

 private:
  size_t size_ = 0;
  unsigned char* pages_ = nullptr;
};

TEST_F(GuardedPage, OnlyLanesOfTheMaskAreTouched) {
  for (const LayerTable& layer : Layers()) {
    SCOPED_TRACE(layer.name);
    EveryMaskedOperation(layer.table);
  }
}

// All 2^32 floats through one entry of a layer's table and of the last one's, on two threads; gives the number of vectors that
// differ.
uint64_t DifferencesOverAllFloats(const LayerTable& layer, const std::string& name) {
  size_t index = 0;
  while (Portable().operations[index].name != name) ++index;
  const auto layer_run = layer.table.operations[index].run;
  const auto last_run = Layers().back().table.operations[index].run;
  std::atomic<uint64_t> differences{0};
  const auto half = [&](uint64_t first, uint64_t last) {
    Operands operands{};
    Outcome got, expected;
    for (uint64_t base = first; base < last; base += 16) {
      for (uint32_t lane = 0; lane < 16; ++lane) {
        const auto bits = static_cast<uint32_t>(base) + lane;
        std::memcpy(operands.vector[0].bytes + 4 * lane, &bits, sizeof bits);
      }
      layer_run(operands, got);
      last_run(operands, expected);
      if (!Same(got, expected)) ++differences;
    }
  };
  std::thread other(half, 0, uint64_t{1} << 31);
  half(uint64_t{1} << 31, uint64_t{1} << 32);
  other.join();
  return differences;
}

TEST(VecOperations, ReciprocalEstimatesOfAllFloats) {
  if (!std::getenv("LUM_EXHAUSTIVE")) GTEST_SKIP() << "takes minutes: set LUM_EXHAUSTIVE=1";
  if (Layers().back().name != "avx512") GTEST_SKIP() << "this processor has no AVX-512";
  for (size_t i = 0; i + 1 < Layers().size(); ++i) {
    EXPECT_EQ(DifferencesOverAllFloats(Layers()[i], "rcp14 f32"), 0u) << Layers()[i].name;
    EXPECT_EQ(DifferencesOverAllFloats(Layers()[i], "rsqrt14 f32"), 0u) << Layers()[i].name;
  }
}

}  // namespace
}  // namespace lum::test
