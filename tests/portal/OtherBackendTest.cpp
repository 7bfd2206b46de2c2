// Which backend is the desktop's own.
#include <gtest/gtest.h>

#include "portal/OtherBackend.h"
#include "tests/support/TemporaryFolder.h"

namespace cutline::portal {
namespace {

class OtherBackendTest : public testing::Test {
 protected:
  void add(const std::string& file, const std::string& name, const std::string& useIn,
           const std::string& interfaces = "org.freedesktop.impl.portal.Print;") {
    mFolder.write(file + ".portal", "# A backend\n[portal]\nDBusName=org.example." + name +
                                        "\nInterfaces=" + interfaces + "\nUseIn=" + useIn + '\n');
  }
  QString other(const QStringList& desktops = {}) {
    return otherPrintBackend({QStringLiteral("/nowhere"), QString::fromStdString(mFolder.path())},
                             desktops);
  }

  test::TemporaryFolder mFolder;
};

TEST_F(OtherBackendTest, TheDesktopsOwnIsTaken) {
  add("a", "a", "gnome;");
  add("b", "b", "kde;lxqt");
  EXPECT_EQ(other({"KDE"}), QStringLiteral("org.example.b"));
  EXPECT_EQ(other({"ubuntu", "GNOME"}), QStringLiteral("org.example.a"));
}

TEST_F(OtherBackendTest, TheNearestDesktopIsFirst) {
  add("a", "a", "gnome");
  add("b", "b", "ubuntu");
  EXPECT_EQ(other({"ubuntu", "GNOME"}), QStringLiteral("org.example.b"));
}

TEST_F(OtherBackendTest, WithoutOneOfItsOwnADesktopHasGtks) {
  add("a", "a", "kde");
  mFolder.write("gtk.portal",
                "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.gtk\n"
                "Interfaces=org.freedesktop.impl.portal.FileChooser;"
                "org.freedesktop.impl.portal.Print\nUseIn=gnome\n");
  EXPECT_EQ(other({"i3"}), QStringLiteral("org.freedesktop.impl.portal.desktop.gtk"));
}

TEST_F(OtherBackendTest, OneThatPrintsIsBetterThanNone) {
  add("z", "z", "kde");
  EXPECT_EQ(other(), QStringLiteral("org.example.z"));
}

TEST_F(OtherBackendTest, WeAreNotAnother) {
  mFolder.write("cutline.portal",
                "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.cutline\n"
                "Interfaces=org.freedesktop.impl.portal.Print\nUseIn=gnome\n");
  EXPECT_EQ(other({"GNOME"}), QString());
}

TEST_F(OtherBackendTest, WhatDoesNotPrintIsNone) {
  add("a", "a", "gnome", "org.freedesktop.impl.portal.FileChooser");
  mFolder.write("b.portal", "Interfaces=org.freedesktop.impl.portal.Print\n");
  mFolder.write("c.portal", "");
  EXPECT_EQ(other({"GNOME"}), QString());
}

TEST_F(OtherBackendTest, AFileOfTheUsersOwnHidesTheSystems) {
  add("a", "system", "gnome");
  const test::TemporaryFolder home;
  home.write("a.portal",
             "DBusName=org.example.home\nInterfaces=org.freedesktop.impl.portal.Print\n");
  EXPECT_EQ(otherPrintBackend(
                {QString::fromStdString(home.path()), QString::fromStdString(mFolder.path())},
                {QStringLiteral("GNOME")}),
            QStringLiteral("org.example.home"));
}

}  // namespace
}  // namespace cutline::portal
