#include "support/pos_ini.h"

#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace Support {

using Tests::Contents;

TEST(PosIni, RemembersAFolderForEachKind) {
  const Tests::TestFolder folder;
  EXPECT_EQ(RememberedFolder(folder.Path(), FolderKind::Input), "");
  RememberFolderOf(folder.Path(), FolderKind::Output, "/home/anna/Città/lista.dat");
  RememberFolderOf(folder.Path(), FolderKind::Input, "C:\\lista.dat");
  RememberFolderOf(folder.Path(), FolderKind::Foreign, "senza cartella");
  RememberFolderOf(folder.Path(), FolderKind::Foreign, "/due\nrighe/lista.sdx");
  EXPECT_EQ(Base::AsText(Contents(folder.Path("POS.ini"))), "0:C:\r\n1:\r\n2:/home/anna/Città\r\n");
  EXPECT_EQ(RememberedFolder(folder.Path(), FolderKind::Output), "/home/anna/Città");
}

TEST(PosIni, LinesCountByTheirPlace) {
  const Tests::TestFolder folder;
  folder.Write("POS.ini", "2:/uno  \n/home\nx\n");
  EXPECT_EQ(RememberedFolder(folder.Path(), FolderKind::Input), "/uno");
  EXPECT_EQ(RememberedFolder(folder.Path(), FolderKind::Foreign), "ome");
  EXPECT_EQ(RememberedFolder(folder.Path(), FolderKind::Output), "");
  folder.Write("POS.ini", "0:/uno\r\n1:/due\r\n");
  EXPECT_EQ(RememberedFolder(folder.Path(), FolderKind::Input), "") << "fewer than three lines read as empty";
}

}  // namespace Support
