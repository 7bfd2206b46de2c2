// Which backend is the desktop's own.
#include <gtest/gtest.h>

#include <filesystem>

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

TEST_F(OtherBackendTest, ALinkThatLeadsNowhereIsNone) {
  std::filesystem::create_symlink("/nonexistent", mFolder / "a.portal");
  add("b", "b", "gnome");
  EXPECT_EQ(other({"GNOME"}), QStringLiteral("org.example.b"));
}

// A variable as long as the object lives.
class Variable {
 public:
  Variable(const char* name, const char* value) : mName(name), mOld(qgetenv(name)) {
    mWasSet = qEnvironmentVariableIsSet(name);
    value != nullptr ? qputenv(name, value) : qunsetenv(name);
  }
  ~Variable() { mWasSet ? qputenv(mName, mOld) : qunsetenv(mName); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* mName;
  QByteArray mOld;
  bool mWasSet = false;
};

TEST(PortalFolders, AreTheUsersOwnBeforeTheSystems) {
  const Variable only("XDG_DESKTOP_PORTAL_DIR", nullptr);
  const Variable home("XDG_DATA_HOME", "/home/a/data");
  {
    const Variable all("XDG_DATA_DIRS", "/opt/share::/usr/share");
    EXPECT_EQ(backendFolders(), QStringList({"/home/a/data/xdg-desktop-portal/portals",
                                             "/opt/share/xdg-desktop-portal/portals",
                                             "/usr/share/xdg-desktop-portal/portals"}));
  }
  const Variable all("XDG_DATA_DIRS", nullptr);
  EXPECT_EQ(backendFolders(), QStringList({"/home/a/data/xdg-desktop-portal/portals",
                                           "/usr/local/share/xdg-desktop-portal/portals",
                                           "/usr/share/xdg-desktop-portal/portals"}));
}

TEST(PortalFolders, AreTheOneThatThePortalItselfIsTold) {
  const Variable only("XDG_DESKTOP_PORTAL_DIR", "/portals");
  EXPECT_EQ(backendFolders(), QStringList("/portals"));
}

TEST(PortalDesktops, AreNamedTheNearestFirst) {
  {
    const Variable desktops("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    EXPECT_EQ(currentDesktops(), QStringList({"ubuntu", "GNOME"}));
  }
  const Variable none("XDG_CURRENT_DESKTOP", nullptr);
  EXPECT_EQ(currentDesktops(), QStringList());
}

}  // namespace
}  // namespace cutline::portal
