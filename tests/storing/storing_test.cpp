#include "storing/storing.h"

#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace tavelo {
namespace {

using storing::geraakt;
using storing::stoor;

struct StoringTest : testing::Test {
    test::TempFolder map;
    std::string bestand = map.write("rooster.rst", "abcdefghij");
    ~StoringTest() override { stoor(""); }

    [[nodiscard]] std::string inhoud() const {
        std::ifstream stream(bestand, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

// The bytes that one read gives, or the name of the error.
std::string gelezen(int fd) {
    std::array<char, 100> bytes{};
    const ssize_t aantal = read(fd, bytes.data(), bytes.size());
    return aantal < 0 ? strerrorname_np(errno) : std::string(bytes.data(), static_cast<std::size_t>(aantal));
}

TEST_F(StoringTest, een_fout_raakt_alleen_de_genoemde_aanroep_op_het_genoemde_bestand) {
    const std::string ander = map.write("ander.txt", "x");
    stoor("read *.rst EIO");
    const int fd = open(bestand.c_str(), O_RDONLY);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(gelezen(fd), "EIO");
    close(fd);
    const int fd_ander = open(ander.c_str(), O_RDONLY);
    EXPECT_EQ(gelezen(fd_ander), "x");
    close(fd_ander);
    EXPECT_EQ(geraakt(0), 1);
}

TEST_F(StoringTest, een_regel_kan_gelden_voor_een_bepaalde_aanroep) {
    stoor("read *.rst EINTR 2; read *.rst max3; read *.rst EIO 4+");
    const int fd = open(bestand.c_str(), O_RDONLY);
    EXPECT_EQ(gelezen(fd), "abc");
    EXPECT_EQ(gelezen(fd), "EINTR");
    EXPECT_EQ(gelezen(fd), "def");
    EXPECT_EQ(gelezen(fd), "ghi");
    EXPECT_EQ(gelezen(fd), "EIO");
    EXPECT_EQ(gelezen(fd), "EIO");
    close(fd);
}

TEST_F(StoringTest, lezen_en_openen_door_de_bibliotheek_zelf_wordt_ook_geraakt) {
    stoor("open *.rst EACCES 1; read *.rst EIO");
    EXPECT_EQ(std::fopen(bestand.c_str(), "rb"), nullptr);
    EXPECT_EQ(errno, EACCES);
    std::FILE* file = std::fopen(bestand.c_str(), "rb");
    ASSERT_NE(file, nullptr);
    std::array<char, 4> bytes{};
    EXPECT_EQ(std::fread(bytes.data(), 1, bytes.size(), file), 0U);
    EXPECT_EQ(errno, EIO);
    EXPECT_NE(std::ferror(file), 0);
    std::fclose(file);
    std::ifstream stream(bestand);
    std::string regel;
    std::getline(stream, regel);
    EXPECT_TRUE(stream.bad());
}

TEST_F(StoringTest, een_schijf_loopt_vol_na_zijn_ruimte) {
    stoor("write *.rst room5");
    const int fd = open(bestand.c_str(), O_WRONLY | O_TRUNC);
    EXPECT_EQ(write(fd, "123", 3), 3);
    EXPECT_EQ(write(fd, "456", 3), 2);
    EXPECT_EQ(write(fd, "6", 1), -1);
    EXPECT_EQ(errno, ENOSPC);
    close(fd);
    EXPECT_EQ(inhoud(), "12345");
}

TEST_F(StoringTest, een_hernoeming_wordt_geraakt_onder_de_oude_en_de_nieuwe_naam) {
    const std::string nieuw = map.file("nieuw");
    stoor("rename *rooster.rst EDQUOT 1; rename *nieuw EIO 2");
    EXPECT_EQ(rename(bestand.c_str(), nieuw.c_str()), -1);
    EXPECT_EQ(errno, EDQUOT);
    EXPECT_EQ(rename(bestand.c_str(), nieuw.c_str()), 0);
    EXPECT_EQ(rename(nieuw.c_str(), bestand.c_str()), -1);
    EXPECT_EQ(errno, EIO);
}

TEST_F(StoringTest, een_pad_zonder_map_telt_vanaf_de_werkmap) {
    stoor("open /*/bestaat-niet EROFS");
    EXPECT_EQ(open("bestaat-niet", O_RDONLY), -1);
    EXPECT_EQ(errno, EROFS);
}

TEST_F(StoringTest, een_trage_aanroep_duurt_en_lukt) {
    stoor("open *.rst 30ms");
    const auto begin = std::chrono::steady_clock::now();
    const int fd = open(bestand.c_str(), O_RDONLY);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(30));
    EXPECT_EQ(gelezen(fd), "abcdefghij");
    close(fd);
}

TEST_F(StoringTest, een_ander_programma_wordt_geraakt_en_schrijft_het_op) {
    const std::string log = map.file("log");
    const std::string regels = map.write("regels", "read *.rst EIO\n");
    const std::string omgeving = "exec env LD_PRELOAD=" STORING_BIBLIOTHEEK " STORING_LOG='" + log + "' ";
    const auto leest = [&](const std::string& hoe) {
        return std::system((omgeving + hoe + " cat '" + bestand + "' >/dev/null 2>&1").c_str()) == 0;
    };
    EXPECT_TRUE(leest(""));
    EXPECT_FALSE(leest("STORING='open *.rst ENOENT'"));
    EXPECT_FALSE(leest("STORING_BESTAND='" + regels + "'"));
    const int gedood = std::system((omgeving + "STORING='close *.rst kill' cat '" + bestand + "' >/dev/null").c_str());
    EXPECT_TRUE(WIFSIGNALED(gedood));
    std::ifstream stream(log);
    const std::string opgeschreven{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_EQ(opgeschreven, "open ENOENT " + bestand + "\nread EIO " + bestand + "\nclose kill " + bestand + "\n");
}

TEST_F(StoringTest, regels_uit_een_bestand_komen_en_gaan_terwijl_het_programma_loopt) {
    const std::string regels = map.file("regels");
    const std::string script = "cat '" + bestand + "'; echo 'open *.rst EIO' >'" + regels + ".nieuw'; mv '" + regels +
                               ".nieuw' '" + regels + "'; exec 3<'" + bestand + "' && echo open; rm '" + regels +
                               "'; exec 3<'" + bestand + "' && echo weer open";
    const std::string opdracht =
        "LD_PRELOAD=" STORING_BIBLIOTHEEK " STORING_BESTAND='" + regels + "' bash -c \"" + script + "\" 2>/dev/null";
    std::FILE* pijp = popen(opdracht.c_str(), "r");
    ASSERT_NE(pijp, nullptr);
    std::array<char, 200> tekst{};
    const std::size_t aantal = std::fread(tekst.data(), 1, tekst.size(), pijp);
    pclose(pijp);
    EXPECT_EQ(std::string(tekst.data(), aantal), "abcdefghijweer open\n");
}

} // namespace
} // namespace tavelo
