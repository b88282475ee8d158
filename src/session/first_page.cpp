#include "session/first_page.h"

#include <string_view>

#include "archive/scan.h"
#include "foundation/file_utilities.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "program.h"
#include "session/archive_commands.h"

namespace vellumark {
namespace {

std::string Paragraphs(const std::string& first, const std::string& second) {
  return second.empty() ? first : first + kLineBreak + kLineBreak + second;
}

// Leads to another computer, which is asked only once the user has given it a drive letter.
bool IsNetworkPath(std::string_view path) { return path.starts_with(R"(\\)"); }

std::string DescribeGames(const Program& program) {
  const auto& games = program.game_search.games;
  if (games.empty()) return {};
  if (games.size() == 1) return LoadMessage(kPageGameFound, {Quoted(games.front().folder)});
  std::string text = LoadMessage(kPageGamesFound);
  for (const FoundGame& game : games) text += kLineBreak + Quoted(game.folder);
  return text;
}

std::string DescribeMissingArchive(const SessionState& session) {
  const std::string text = LoadMessage(kPageArchiveMissing, {Quoted(session.missing_archive)});
  if (IsNetworkPath(session.missing_archive)) {
    return Paragraphs(text, LoadMessage(kPageNetworkPath));
  }
  return session.looked_again ? Paragraphs(text, LoadMessage(kPageStillMissing)) : text;
}

FirstPage DescribeNoArchive(const Program& program) {
  const SessionState& session = program.session;
  const auto& games = program.game_search.games;
  FirstPage page{.offers_open = true, .offers_look_again = !session.missing_archive.empty()};
  page.text = page.offers_look_again
                  ? DescribeMissingArchive(session)
                  : Paragraphs(LoadMessage(kPageNoArchive), DescribeGames(program));
  page.new_archive = games.empty() || page.offers_look_again
                         ? LoadMessage(kPageNew)
                         : LoadMessage(kPageNewFor, {FileNameOf(games.front().folder)});
  return page;
}

FirstPage DescribeEmptyArchive(const ArchiveState& archive) {
  const ArchiveSettings& settings = archive.settings;
  const std::string main_folder = Quoted(Trimmed(settings.MainFolder));
  const std::string game_folder = Quoted(Trimmed(settings.GameFolder));
  if (settings.MainFolder.empty() || settings.GameFolder.empty()) {
    return {.text = LoadMessage(kPageNotSetUp)};
  }
  FirstPage page{.offers_look_again = true};
  if (!archive.main_folder_there || !archive.game_folder_there) {
    std::string text;
    if (!archive.main_folder_there) text = LoadMessage(kPageMainFolderMissing, {main_folder});
    if (!archive.game_folder_there) {
      const std::string missing = LoadMessage(kPageGameFolderMissing, {game_folder});
      text = text.empty() ? missing : Paragraphs(text, missing);
    }
    page.text = Paragraphs(text, LoadMessage(kPageFoldersAdvice));
    if (IsNetworkPath(settings.MainFolder) || IsNetworkPath(settings.GameFolder)) {
      page.text = Paragraphs(page.text, LoadMessage(kPageNetworkPath));
    }
  } else {
    page.text = LoadMessage(kPageArchiveEmpty, {game_folder});
  }
  return page;
}

}  // namespace

std::optional<FirstPage> DescribeFirstPage(const Program& program) {
  if (program.catalogue.EntryCount() > 0) return std::nullopt;
  if (Trimmed(program.preferences.LastArchive).empty()) return DescribeNoArchive(program);
  return DescribeEmptyArchive(program.archive);
}

void LookAgain(Program& program) {
  if (!Trimmed(program.preferences.LastArchive).empty()) return RescanCommand(program);
  const std::string path = program.session.missing_archive;
  program.session.looked_again = true;
  if (FileExists(program.files, path)) OpenArchive(program, path);
}

}  // namespace vellumark
