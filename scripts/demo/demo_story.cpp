#include "demo_story.h"

namespace vellumark::demo {
namespace {

constexpr std::string_view kAngkorWat = "Angkor Wat";
constexpr std::string_view kRaceForTheIris = "Race For The Iris";
constexpr std::string_view kTombOfSeth = "The Tomb Of Seth";
constexpr std::string_view kBurialChambers = "Burial Chambers";
constexpr std::string_view kValleyOfTheKings = "Valley Of The Kings";
constexpr std::string_view kKv5 = "KV5";
constexpr std::string_view kTempleOfKarnak = "Temple Of Karnak";
constexpr std::string_view kGreatHypostyleHall = "The Great Hypostyle Hall";
constexpr std::string_view kSacredLake = "Sacred Lake";
constexpr std::string_view kTombOfSemerkhet = "Tomb Of Semerkhet";
constexpr std::string_view kGuardianOfSemerkhet = "Guardian Of Semerkhet";
constexpr std::string_view kDesertRailroad = "Desert Railroad";
constexpr std::string_view kAlexandria = "Alexandria";
constexpr std::string_view kCoastalRuins = "Coastal Ruins";
constexpr std::string_view kPharosTempleOfIsis = "Pharos Temple Of Isis";
constexpr std::string_view kCleopatrasPalaces = "Cleopatras Palaces";
constexpr std::string_view kCatacombs = "Catacombs";
constexpr std::string_view kTempleOfPoseidon = "Temple Of Poseidon";
constexpr std::string_view kLostLibrary = "The Lost Library";
constexpr std::string_view kHallOfDemetrius = "Hall Of Demetrius";
constexpr std::string_view kCityOfTheDead = "City Of The Dead";
constexpr std::string_view kTrenches = "Trenches";
constexpr std::string_view kChambersOfTulun = "Chambers Of Tulun";
constexpr std::string_view kStreetBazaar = "Street Bazaar";
constexpr std::string_view kCitadelGate = "Citadel Gate";
constexpr std::string_view kCitadel = "Citadel";
constexpr std::string_view kSphinxComplex = "Sphinx Complex";
constexpr std::string_view kUnderneathTheSphinx = "Underneath The Sphinx";
constexpr std::string_view kMenkauresPyramid = "Menkaures Pyramid";
constexpr std::string_view kInsideMenkauresPyramid = "Inside Menkaures Pyramid";
constexpr std::string_view kMastabas = "The Mastabas";
constexpr std::string_view kGreatPyramid = "The Great Pyramid";
constexpr std::string_view kKhufusQueensPyramids = "Khufus Queens Pyramids";
constexpr std::string_view kInsideTheGreatPyramid = "Inside The Great Pyramid";
constexpr std::string_view kTempleOfHorus = "Temple Of Horus";

constexpr bool kShot = true;
constexpr bool kNoShot = false;

}  // namespace

// An import empties the game's folder but for the last savegame, which becomes slot 0 without its
// note and screen-shot. So every sub-folder but the first begins with the end of the one before.
const std::vector<std::vector<StorySavegame>>& ArchivedSavegames() {
  static const std::vector<std::vector<StorySavegame>> kFolders{
      {
          {0, 1, kAngkorWat, kShot, "First steps. Mind the boars near the bridge."},
          {1, 3, kAngkorWat, kShot,
           "Secret 2 of 8 is behind the waterfall.\nSmall medipack on the ledge to the left.\n"
           "Swim back, do not climb."},
          {2, 5, kAngkorWat, kNoShot, ""},
          {3, 6, kAngkorWat, kShot, ""},
          {4, 8, kRaceForTheIris, kShot, "Just before the race. He is quick, take the inner path."},
          {5, 9, kRaceForTheIris, kNoShot, ""},
          {6, 11, kTombOfSeth, kShot,
           "Flares are running low (3 left).\nLever behind the third statue."},
          {7, 13, kTombOfSeth, kNoShot, ""},
          {8, 14, kTombOfSeth, kNoShot, "Before the sand room - run, don't look back."},
          {9, 17, kBurialChambers, kShot,
           "Four doors, four levers. Order: jackal, falcon, baboon, man.\n"
           "The wrong one lets the beetles in!"},
          {10, 18, kBurialChambers, kNoShot, ""},
          {11, 20, kBurialChambers, kNoShot,
           "Zoë says there is a secret above the entrance.\n"
           "Checked twice: crack in the ceiling, jump up."},
          {12, 22, kValleyOfTheKings, kShot, "Got the jeep. Ramp to the right, full speed."},
          {13, 23, kValleyOfTheKings, kNoShot, ""},
          {14, 25, kKv5, kNoShot, ""},
          {15, 27, kKv5, kShot, "Jeep left at the gate. Large medipack in the side tunnel."},
      },
      {
          {0, 27, kKv5, kNoShot, ""},
          {1, 29, kTempleOfKarnak, kShot,
           "Crocodile in the basin.\nShoot from the edge first, then dive for the key."},
          {2, 30, kTempleOfKarnak, kNoShot, ""},
          {3, 32, kGreatHypostyleHall, kShot, "So many columns... exit is up, not down."},
          {4, 33, kGreatHypostyleHall, kNoShot, ""},
          {5, 35, kSacredLake, kShot, "Déjà vu: same lake, but now the water is high."},
          {6, 36, kSacredLake, kNoShot, ""},
          {7, 38, kTombOfSemerkhet, kNoShot,
           "The Senet game.\nThree pieces home = the short way.\nLost twice, the long way is fine "
           "too.\nKeep this one!"},
          {8, 40, kTombOfSemerkhet, kShot, ""},
          {9, 41, kTombOfSemerkhet, kNoShot, "Rope over the pit. Swing three times, then let go."},
          {10, 43, kGuardianOfSemerkhet, kShot, "The bull! Make it run into the three doors."},
          {11, 46, kDesertRailroad, kShot, "Crowbar is in the second carriage."},
          {12, 47, kDesertRailroad, kNoShot, ""},
          {13, 49, kAlexandria, kShot, "No hurry here, nobody shoots. Look into every alley."},
          {14, 51, kCoastalRuins, kNoShot, ""},
          {15, 52, kCoastalRuins, kShot,
           "Need three more tokens for the tomb door.\nÀ faire: the hut near the water."},
      },
      {
          {0, 52, kCoastalRuins, kNoShot, ""},
          {1, 54, kPharosTempleOfIsis, kShot, "Deep dive. Air pocket half way, on the right."},
          {2, 56, kPharosTempleOfIsis, kNoShot, ""},
          {3, 57, kCleopatrasPalaces, kShot, "Breastplate and greaves done, gauntlets missing."},
          {4, 59, kCleopatrasPalaces, kNoShot, "Left alcove: crossbow bolts."},
          {5, 62, kCatacombs, kShot,
           "Skeletons do not stay down.\nShotgun near the edge, and they fall."},
          {7, 63, kCatacombs, kNoShot, ""},
          {8, 65, kTempleOfPoseidon, kShot, ""},
          {9, 66, kLostLibrary, kNoShot,
           "Planets puzzle. Sun in the middle, then by size.\nRan out of patience, see tomorrow."},
          {10, 69, kLostLibrary, kShot, "Horsemen beaten with 4 medipacks left."},
          {11, 71, kHallOfDemetrius, kNoShot, ""},
          {12, 73, kCityOfTheDead, kShot,
           "Motorbike! Nitro for the long jump is behind the grille."},
          {13, 75, kCityOfTheDead, kNoShot, ""},
          {14, 78, kTrenches, kNoShot, "Train the jump here. Für alle Fälle: keep it."},
          {15, 80, kTrenches, kShot, ""},
      },
      {
          {0, 80, kTrenches, kNoShot, ""},
          {1, 83, kChambersOfTulun, kShot, "Roof first, the valve only afterwards."},
          {2, 86, kStreetBazaar, kShot,
           "Car jack from the soldier at the garage.\nSecret: over the awnings, last one breaks."},
          {4, 89, kCitadelGate, kNoShot, ""},
          {5, 92, kCitadel, kShot, "Beast on the roof. Run round the tower, jump when it charges."},
          {6, 96, kSphinxComplex, kShot, ""},
          {7, 99, kUnderneathTheSphinx, kShot,
           "Four holy scripts needed.\nHave: 1 and 3.\nScript 2: through the flooded passage."},
          {8, 103, kMenkauresPyramid, kNoShot, ""},
          {9, 106, kInsideMenkauresPyramid, kNoShot, ""},
          {10, 109, kMastabas, kShot, "Shaft key from the south-west tomb, not from the big one."},
          {11, 114, kGreatPyramid, kShot, "Rolling stones while climbing. Stay left, always left."},
          {12, 118, kKhufusQueensPyramids, kShot, ""},
          {13, 122, kInsideTheGreatPyramid, kShot,
           "No way back from here!\nLarge medipacks: 6, small: 11, revolver: 40."},
          {14, 126, kTempleOfHorus, kShot, "Before the last climb."},
      },
  };
  return kFolders;
}

const std::vector<StorySavegame>& GameFolderSavegames() {
  static const std::vector<StorySavegame> kSavegames{
      {0, 126, kTempleOfHorus, kNoShot, ""},
      {1, 110, kMastabas, kNoShot, ""},
      {2, 111, kMastabas, kNoShot, ""},
      {4, 119, kKhufusQueensPyramids, kNoShot,
       "Went back for the secret that I missed.\nIt is behind the second mastaba, façade side."},
      {5, 123, kInsideTheGreatPyramid, kNoShot, ""},
      {8, 128, kTempleOfHorus, kShot, ""},
      {11, 130, kTempleOfHorus, kShot, "All amulets in place.\nNow only the way out is left."},
  };
  return kSavegames;
}

}  // namespace vellumark::demo
