#include "demo_list.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

namespace Samples {
namespace {

constexpr int absent = 65535;
constexpr int freeToAir = 0x04;
constexpr int activeBit = 0x04;

// The bouquets of Bouquets.txt; those of Astra 19.2E come last, from Deutschland on.
// clang-format off
enum class Package {
  Nazionali, PacCinema, PacSport, PacFamiglia, Regioni, Mondo, Polski, Balcani, Oriente, Deutschland,
  Premium, Donau, TeleEte, Sol, Benelux
};
// clang-format on
using enum Package;

enum class Theme { General, Cinema, Sport, News, Music, Kids, Culture, Local, Radio, Service };
using enum Theme;

struct Carrier {
  Package package;
  int frequencyMHz;
  char polarisation;
  int symbolRate;
  int fecCode;
  int tid;
  int nid;
};

// clang-format off
constexpr Carrier carriers[] = {
    {Mondo, 10971, 'H', 29700, 1, 12300, 318},        {Oriente, 10815, 'H', 27500, 3, 11500, 318},
    {Polski, 10758, 'V', 27500, 2, 11200, 318},       {Polski, 10719, 'V', 27500, 5, 11000, 318},
    {Mondo, 10930, 'H', 30000, 1, 12100, 318},        {Polski, 10796, 'V', 27500, 3, 11400, 318},
    {Oriente, 10872, 'V', 27500, 2, 11800, 176},      {Mondo, 11054, 'H', 27500, 3, 12700, 318},
    {Mondo, 11034, 'V', 27500, 2, 12600, 318},        {Polski, 11158, 'V', 27500, 3, 13200, 113},
    {Nazionali, 11200, 'V', 27500, 3, 13400, 318},    {Nazionali, 11013, 'H', 29900, 2, 12500, 318},
    {Nazionali, 10992, 'V', 27500, 1, 12400, 318},    {Regioni, 11179, 'H', 27500, 2, 13300, 318},
    {PacSport, 11785, 'H', 29900, 2, 5300, 64511},    {PacCinema, 11861, 'H', 29900, 3, 5700, 64511},
    {Balcani, 11823, 'H', 27500, 5, 5500, 318},       {Nazionali, 11804, 'V', 27500, 1, 5400, 318},
    {Nazionali, 11765, 'V', 27500, 1, 5200, 318},     {PacCinema, 11842, 'V', 29900, 2, 5600, 64511},
    {Mondo, 11727, 'V', 27500, 2, 5000, 318},         {Donau, 11302, 'H', 22000, 1, 1007, 1},
    {Donau, 11214, 'H', 22000, 1, 1001, 1},           {Sol, 11317, 'V', 22000, 3, 1008, 1},
    {Deutschland, 11464, 'H', 22000, 1, 1017, 1},     {Deutschland, 11361, 'H', 22000, 1, 1011, 1},
    {Donau, 11243, 'H', 22000, 3, 1003, 1},           {Sol, 11097, 'V', 22000, 3, 1042, 1},
    {Balcani, 11938, 'H', 27500, 2, 6100, 318},       {PacFamiglia, 11976, 'H', 29900, 3, 6300, 64511},
    {PacCinema, 11996, 'V', 29900, 2, 6400, 64511},   {PacFamiglia, 11880, 'V', 27500, 2, 5800, 64511},
    {PacCinema, 11900, 'H', 29900, 2, 5900, 64511},   {PacFamiglia, 11958, 'V', 27500, 2, 6200, 64511},
    {PacCinema, 12034, 'V', 29900, 3, 6600, 64511},   {Donau, 12662, 'H', 22000, 3, 1115, 1},
    {Benelux, 12721, 'H', 23500, 1, 1119, 53},        {Benelux, 12515, 'H', 22000, 3, 1105, 53},
    {Benelux, 12574, 'H', 22000, 1, 1109, 1},         {Deutschland, 12265, 'H', 27500, 2, 1093, 1},
    {Polski, 12188, 'V', 27500, 3, 7400, 113},        {Balcani, 12130, 'H', 27500, 2, 7100, 318},
    {Regioni, 12149, 'V', 27500, 2, 7200, 318},       {Balcani, 12169, 'H', 27500, 2, 7300, 318},
    {PacFamiglia, 12054, 'H', 29900, 3, 6700, 64511}, {Polski, 12284, 'H', 27500, 3, 7900, 113},
    {Regioni, 12111, 'V', 27500, 2, 7000, 318},       {Regioni, 11642, 'H', 27500, 2, 15700, 318},
    {Mondo, 11623, 'V', 27500, 2, 15600, 318},        {Nazionali, 11541, 'V', 22000, 3, 1800, 200},
    {PacFamiglia, 11219, 'H', 29900, 3, 100, 64511},  {Mondo, 11604, 'H', 27500, 3, 15500, 318},
    {PacSport, 11355, 'V', 29900, 3, 800, 64511},     {Regioni, 11662, 'V', 27500, 2, 15800, 318},
    {Regioni, 12558, 'V', 27500, 2, 9200, 319},       {PacCinema, 12418, 'V', 29900, 2, 8600, 64511},
    {PacSport, 12341, 'V', 29900, 2, 8200, 64511},    {Oriente, 12539, 'H', 30000, 3, 9100, 318},
    {Oriente, 12399, 'H', 27500, 2, 8500, 318},       {PacSport, 12616, 'H', 29900, 3, 9500, 64511},
    {PacFamiglia, 12360, 'H', 29900, 2, 8300, 64511}, {TeleEte, 12012, 'V', 29700, 1, 1080, 1},
    {Premium, 12070, 'H', 27500, 2, 1, 133},          {Deutschland, 11836, 'H', 27500, 2, 1101, 1},
    {TeleEte, 12207, 'V', 29700, 1, 1090, 1},         {TeleEte, 12090, 'V', 29700, 1, 1084, 1},
    {Premium, 12031, 'H', 27500, 2, 4, 133},          {Deutschland, 11953, 'H', 27500, 2, 1079, 1},
    {PacCinema, 12635, 'V', 29900, 3, 9600, 64511},   {PacFamiglia, 12673, 'V', 29900, 3, 9800, 64511},
    {PacSport, 12713, 'V', 29900, 3, 10000, 64511},   {PacCinema, 12731, 'H', 29900, 2, 10100, 64511},
    {Oriente, 12654, 'H', 27500, 2, 9700, 702},       {Sol, 10979, 'V', 22000, 3, 1034, 1},
    {Premium, 10920, 'H', 22000, 4, 15, 133},         {Sol, 11038, 'V', 22000, 3, 1038, 1},
    {Deutschland, 10773, 'H', 22000, 2, 1053, 1},     {Deutschland, 10891, 'H', 22000, 1, 1061, 1},
    {Sol, 10847, 'V', 22000, 3, 1058, 1},             {Deutschland, 10743, 'H', 22000, 3, 1051, 1},
    {TeleEte, 11817, 'V', 29700, 1, 1070, 1},         {Premium, 11719, 'H', 27500, 2, 3, 133},
    {Deutschland, 11493, 'H', 22000, 1, 1019, 1},     {Premium, 11758, 'H', 27500, 2, 17, 133},
    {Premium, 11797, 'H', 27500, 2, 2, 133},          {TeleEte, 11567, 'V', 22000, 3, 1024, 1},
    {TeleEte, 11479, 'V', 22000, 3, 1018, 1},
};
// clang-format on

DemoTransponder TransponderOf(const Carrier& carrier) {
  const auto& [package, frequency, polarisation, symbolRate, fecCode, tid, nid] = carrier;
  return {frequency, polarisation == 'H', symbolRate, fecCode, tid, nid, package < Deutschland ? 0 : 1};
}

struct Lineup {
  Package package;
  Theme theme;
  int coding;
  std::string_view names;
};

// What the bouquets broadcast, in the order of the list. Names are parted by "|"; after a name "*" stands for
// a second channel in HD, "^" for one an hour later, "#4" for four channels numbered from 1.
// clang-format off
constexpr Lineup lineups[] = {
    {Nazionali, General, 0x04, "Rete Italia*|Canale Aperto*|Rete Due|Rete Tre|Città Più*^|La Nazionale*|"
     "Stella TV|Italia Domani|Primo Canale IT|Sette Colli TV|Tele Penisola|Buongiorno TV|Fede e Vita"},
    {Nazionali, News, 0x04, "Notizie 24*|Ultim'Ora TV|Parlamento #2|Meteo Italia|Economia TV"},
    {Nazionali, Culture, 0x04, "Storia e Arte|Archivio TV|Scuola Aperta"},
    {Nazionali, Kids, 0x04, "Girotondo TV"},
    {PacCinema, Cinema, 0x24, "Cine Prima*^|Cine Seconda*|Cine Azione*^|Cine Giallo*|Cine Commedia*^|"
     "Cine Cult|Cine Amore*|Cine Western|Cine Famiglia*|Cine d'Autore|Cine Notte|Cine Europa|Cine Festival|"
     "Cine Fantasy|Cine Anni '80|Grande Schermo|Film d'Epoca|Corti e Doc|Serie Prima*^|Serie Crime*|"
     "Serie Comedy|Serie Oltre|Fiction Italia|Telefilm Oggi|Prima Visione #6"},
    {PacCinema, Cinema, 0x04, "Vetrina Film"},
    {PacSport, Sport, 0xA4, "Sport Primo*|Sport Secondo*|Sport Terzo*|Sport Notizie*|Stadio Live #7|"
     "Tutto Calcio|Calcio Estero|Motori TV*|Pista e Rally|Tennis Arena*|Canestro TV|Volley Club|Pedale TV|"
     "Vela e Mare|Sci e Neve|Golf Green|Mischia Rugby|Boxe Notte|Ippica #2|Caccia e Lenza|Nuoto Azzurro|"
     "Sport d'Epoca"},
    {PacSport, Sport, 0x04, "Sport in Chiaro"},
    {PacFamiglia, General, 0x24, "Prima Serata*^|Vita Più*|Risate TV*|Quiz Serale|Reality Casa|Donna Oggi"},
    {PacFamiglia, Kids, 0x24, "Cartoni Uno*^|Cartoni Due|Pianeta Toons*^|Bimbi e Fiabe|Nido TV|Piccoli Passi|"
     "Mondo Anime|Robot & Eroi|Pupazzi TV|Teen Italia|Giocagiò"},
    {PacFamiglia, Culture, 0x24, "Natura Viva*^|Storia Antica*|Scienza Più*|Grandi Viaggi*|Il Pianeta|"
     "Arte e Musei|Animali & Co|Misteri TV|Mare Blu|Cucina Oggi|Gusto Italiano|Casa e Stile|Salute e Corpo|"
     "Giardino TV|Invenzioni"},
    {PacFamiglia, Music, 0x24, "Musica Hit*|Gran Concerto*|Opera Lirica|Jazz & Blues|Rock Arena*|"
     "Canzoni Italia|Disco Settanta|Pista da Ballo"},
    {Mondo, News, 0x04, "World Report*|Europe Daily*|Europa Notizie|Monde Info|Global Business|Asia Tonight|"
     "Africa Hebdo|Noticias Ya|Nachrichten Sat|Swiss Journal|Arab Horizon|China Monitor|India Headlines|"
     "Korea Window|Balkan Report|Türk Haber Sat|Americas Now|Weather World"},
    {Mondo, General, 0x04, "Télé Monde|Pilgrim Channel|Alpen Kanal|Fashion Catwalk|Travel Guide"},
    {Mondo, Music, 0x04, "Clip Parade|Hits Europe"},
    {Regioni, Local, 0x04, "Roma Città|Milano Città*|Torino Città|Napoli Città|Genova Città|"
     "Bologna Città|Firenze Città|Bari Città|Palermo Città|Lombardia 24|Tele Brianza|Canale Piemonte|"
     "Valle TV|Tele Riviera|Tele Laguna|Tele Dolomiti|Friuli Sera|Toscana Sera|Tele Maremma|Umbria Verde|"
     "Marche Oggi|Abruzzo TV|Tele Vesuvio|Puglia Sud|Salento TV|Lucania Sat|Calabria Viva|Tele Etna|"
     "Sicilia Blu|Sardegna Mare"},
    {Regioni, General, 0x04, "Shopping Oggi|Aste e Gioielli|Arte Vendite|Televendita Più|Oroscopo TV|"
     "Mercatino TV|Santuario TV"},
    {Regioni, Music, 0x04, "Liscio TV|Piazza Napoli"},
    {Deutschland, General, 0x04, "Kanal Eins*|Kanal Zwei*|Prima Acht*|Bunt TV|Kauf Rausch|Teleshop 24|"
     "Schmuck Kanal|Astro Licht"},
    {Deutschland, Local, 0x04, "Nordlicht TV*|Rheinland TV*|Bayern Heimat|Hessen Heute|Sachsenblick|"
     "Schwaben TV|Berlin Direkt|Hamburg Hafen|München Sieben"},
    {Deutschland, News, 0x04, "Tagesblick*|Börse Aktuell|Wetter Kanal|World Report|Europa Notizie"},
    {Deutschland, Culture, 0x04, "Wissen Plus*|Doku Welt|Kulturforum|Theater Kanal"},
    {Deutschland, Cinema, 0x04, "Spielfilm Eins|Krimi Kanal"},
    {Deutschland, Kids, 0x04, "Kinderinsel*"},
    {Deutschland, Music, 0x04, "Köln Musik*|Schlager Welt|Volksmusik TV|Klassik Saal"},
    {Premium, Cinema, 0x64, "Kino Premiere*^|Kino Action*|Kino Komödie|Kino Gefühl|Kino Nostalgie|"
     "Serien Welt*|Krimi Premium*"},
    {Premium, Sport, 0x64, "Fußball Live #5|Bundesarena #3|Rennstrecke*|Golf am See"},
    {Premium, Culture, 0x64, "Tierwelt*|Geschichte|Reise Fieber"},
    {Premium, General, 0x64, "Junior Welt|Manga Nacht|Goldstimme TV"},
    {Donau, General, 0x84, "Donau Eins*|Donau Zwei*|Donau Drei|Donau Sport*|Alpen Doku|Berg und Tal|"
     "Alpen Kino"},
    {Donau, Local, 0x04, "Tirol Heute|Salzburg Bild|Kärnten Regio|Wien Melange|Steiermark Land"},
    {TeleEte, General, 0xA4, "Télé Été*|Canal Lumière*^|Télé Monde"},
    {TeleEte, Cinema, 0xA4, "Ciné Étoile d'Or|Ciné Soirée*|Ciné Frisson|Ciné Rétro|Série Noire*|"
     "Feuilleton TV"},
    {TeleEte, Sport, 0xA4, "Stade Direct*|Foot Passion #3|Mêlée Rugby|Équitation TV"},
    {TeleEte, News, 0xA4, "Info Continu*|Météo Express"},
    {TeleEte, Kids, 0xA4, "Petits Génies|Dessins Animés|Mangas & BD"},
    {TeleEte, Culture, 0xA4, "Planète Verte*|Histoire Vive|Escales Océan|Cuisine du Jour"},
    {TeleEte, Music, 0xA4, "Musique Plus*|Concert Privé"},
    {TeleEte, Local, 0x04, "Bretagne Télé|Provence Télé|Alsace Télé"},
    {Sol, General, 0x44, "Señal 7*|Canal Mañana*|Comedia Total|Hogar y Cocina"},
    {Sol, Cinema, 0x44, "Cine Estreno*^|Cine de Barrio|Cine Ibérico|Series Ya*|Acción Total"},
    {Sol, Sport, 0x44, "Gol Directo #4|Deporte Vivo*|Caza y Campo"},
    {Sol, Kids, 0x44, "Peques TV|Dibujos Más"},
    {Sol, Culture, 0x44, "Historia Viva*|Viajes Lejanos"},
    {Sol, News, 0x04, "Noticias Día"},
    {Sol, Music, 0x04, "Éxitos Latinos|Clip Parade"},
    {Sol, Local, 0x04, "Andalucía Vista|Galicia Mar|Canarias Sol"},
    {Benelux, General, 0x24, "Polder TV*|Vlaams Venster|Zeeland TV|Wallonie Sat|Film Polder|Sport Oranje*|"
     "Kinderzolder"},
    {Benelux, News, 0x04, "Nieuws Nu|Global Business"},
    {Polski, General, 0x44, "Polska Jeden*|Polska Dwa*|Kanal Wawel|Dom i Styl|Kuchnia Smaku|Bajki TV|Smyk TV|"
     "Dziennik 24*|Biznes Polska|Historia Polska|Natura i My"},
    {Polski, Cinema, 0x44, "Kino Premiera*|Kino Nowe*|Kino Klasyka|Seriale Plus|Film Akcja"},
    {Polski, Sport, 0x44, "Arena Polska*|Mecz na Zywo #3"},
    {Polski, Music, 0x04, "Muzyka Mix|Disco Polka TV"},
    {Balcani, General, 0x84, "Egeo TV*|Athina Sat|Kriti TV|Jadran TV|Beograd Sat|Sarajevo Sat|Skopje Sat|"
     "Tirana Sot|Niš Kanal|Sofia Vesti|Tainies #2|Balkan Kino|Ellada Sport #2|Dunav Sport|Bouzouki TV|"
     "Shqip Muzik"},
    {Oriente, General, 0x04, "Atlas TV*|Casablanca Sat|Tanger Média|Algérie Demain|Tunis Verte|Oasis TV|"
     "Layali TV|Beyrouth Une|Amman Sat|Golfo 24|Oman Heritage|Sahara Info|Zagros TV|Bosfor TV|Nil Film|"
     "Layali Drama|Nil Stadio|Nil Tarab|Anadolu Müzik"},
    {Nazionali, Radio, 0x04, "Radio Nazion. #3|Radio Azzurra|Radio Tricolore|Radio Dibattito|Radio Sinfonia|"
     "Radio Palcoscen.|Radio Traffico|Radio Jazz Club|Anni '60 FM|Anni '80 FM|Radio Giovane IT|"
     "Radio Pellegrina|Radio Fiaba|Radio Cronaca|Radio Cabaret|Radio Poesia"},
    {Regioni, Radio, 0x04, "Radio Brianza|Onda Ligure|Radio Laguna|Radio Dolomiti|Radio Città Alta|"
     "Radio Maremma|Radio Campanile|Radio Vesuvio|Radio Gargano|Radio Salento|Radio Etna|Radio Barbagia|"
     "Radio Liscio|Radio Dediche|Studio Nove FM|Cuore Blu FM|Radio Adige Sat|Radio Trulli|Radio Navigli|"
     "Radio Lanterna|Radio Due Torri|Conca d'Oro FM"},
    {Mondo, Radio, 0x04, "World Radio #2|Radio Monde|Radio Alpina|Swiss Pop FM|Europe Jazz FM|Pilgrim Radio|"
     "Asia Wave|Gospel Wave|Lounge Europe FM"},
    {Deutschland, Radio, 0x04, "Welle Eins|Welle Zwei|Welle Kultur|Welle Klassik|Nordfunk Info|Nordfunk Hits|"
     "Rheinklang #4|Bayernklang #3|Hessenfunk|Sachsenfunk|Saarklang|Schwabenfunk|Berlin Nacht FM|Jugendwelle|"
     "Schlagerfunk|Kinderfunk|Hörspiel FM|Klangwald|Oldie Funk|Jazz Keller FM|Radio Alster|Köln Süd FM|"
     "World Radio 1"},
    {Donau, Radio, 0x04, "Donau Radio #3|Tirol Klang|Walzer FM|Kärnten FM|Salzach Radio|Alpenfunk"},
    {TeleEte, Radio, 0x04, "Radio Été|Radio Bohème|Onde Bretonne|Radio Mistral|Radio Garonne|"
     "Accordéon FM|Jazz à Minuit|Info Route FM|Comptine FM|Radio Falaise|Opéra FM"},
    {Sol, Radio, 0x04, "Radio Señal|Radio Meseta|Onda Canaria|Radio Gaita|Flamenco FM|Radio Alcázar|"
     "Copla FM|Mañana FM"},
    {Benelux, Radio, 0x04, "Radio Polder|Radio Schelde|Radio Tulp|Ardenne FM"},
    {Polski, Radio, 0x04, "Radio Mazury|Radio Tatry|Fala Polska|Radio Kraków Sat|Jazz Warszawa"},
    {Balcani, Radio, 0x04, "Radio Egeo|Radio Jadran|Radio Illyria|Ellada FM"},
    {Oriente, Radio, 0x04, "Radio Atlas|Radio Sahara|Médi Onde|Radio Souk|Radio Bosfor"},
    {Nazionali, Service, 0x04, "Guida EPG|Dati Meteo|Televideo Dati|Canale Tecnico"},
    {PacCinema, Service, 0x04, "Interattivo #4|Promo Mosaico|Aggiorna SW #3|Giochi TV"},
    {PacSport, Service, 0x04, "Statistiche|Scelta Camera"},
    {Mondo, Service, 0x04, "Test Portante #2|Data Stream"},
    {Deutschland, Service, 0x04, "EPG Daten|Testbild|SW Update #3"},
    {TeleEte, Service, 0x04, "Mosaïque|Guide Données|Téléch. #2"},
    {Sol, Service, 0x04, "Guía EPG|Datos #2"},
};
// clang-format on

struct Listed {
  DemoChannel channel;
  Theme theme;
};

// A small generator of its own, so that the list is the same with every standard library.
class Dice {
 public:
  // A number from 0 to sides - 1.
  int Roll(int sides) {
    state = state * 1664525U + 1013904223U;
    return static_cast<int>((state >> 16U) % static_cast<std::uint32_t>(sides));
  }

 private:
  std::uint32_t state = 130214;
};

// The PIDs of a transponder's first channel and the step to those of the next one.
struct PidPlan {
  int video;
  int videoStep;
  int audio;
  int audioStep;
};

constexpr std::array<PidPlan, 4> pidPlans = {
    {{512, 1, 650, 10}, {1001, 100, 1002, 100}, {163, 1, 92, 1}, {110, 110, 120, 110}}};

// The channels that one entry of a lineup stands for.
std::vector<std::string> Variants(std::string_view entry) {
  const std::size_t end = std::min(entry.find_first_of("*^#"), entry.size());
  const std::string base(entry.substr(0, end));
  const std::string_view marks = entry.substr(end);
  std::vector<std::string> names;
  if (marks.starts_with('#')) {
    for (char digit = '1'; digit <= marks[1]; ++digit) names.push_back(base + digit);
    return names;
  }
  names.push_back(base);
  if (marks.find('*') != std::string_view::npos) names.push_back(base + " HD");
  if (marks.find('^') != std::string_view::npos) names.push_back(base + " +1");
  return names;
}

std::vector<std::string> Names(std::string_view list) {
  std::vector<std::string> names;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find('|'), list.size());
    for (std::string& name : Variants(list.substr(0, end))) names.push_back(std::move(name));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return names;
}

std::vector<int> TranspondersOf(Package package) {
  std::vector<int> numbers;
  int number = 0;
  for (const Carrier& carrier : carriers) {
    ++number;
    if (carrier.package == package) numbers.push_back(number);
  }
  return numbers;
}

class ListBuilder {
 public:
  void Add(const Lineup& lineup) {
    for (std::string& name : Names(lineup.names)) {
      if (dice.Roll(54) == 0) slots.resize(slots.size() + 1 + static_cast<std::size_t>(dice.Roll(3)));
      slots.push_back(Listed{MakeChannel(lineup, std::move(name)), lineup.theme});
    }
  }

  std::vector<std::optional<Listed>> Take() { return std::move(slots); }

 private:
  struct Position {
    std::size_t current = 0;
    int left = 0;
  };

  // The channels of a bouquet lie in small groups on its transponders.
  int NextTransponder(Package package) {
    Position& position = positions[package];
    const std::vector<int> transponders = TranspondersOf(package);
    if (position.left == 0) {
      position.left = 2 + dice.Roll(4);
      position.current = (position.current + 1) % transponders.size();
    }
    --position.left;
    return transponders[position.current];
  }

  DemoChannel MakeChannel(const Lineup& lineup, std::string name) {
    const int transponder = NextTransponder(lineup.package);
    const int index = services[transponder]++;
    const int tid = carriers[transponder - 1].tid;
    const int sid = 1200 + tid * 7919 % 61000 + index;
    const int flags = dice.Roll(20) == 0 ? lineup.coding - activeBit : lineup.coding;
    DemoChannel channel{std::move(name), transponder, flags, sid, absent, absent, absent, absent, absent};
    if (lineup.theme != Service) SetPids(channel, lineup, index);
    return channel;
  }

  void SetPids(DemoChannel& channel, const Lineup& lineup, int index) {
    const PidPlan& plan = pidPlans[static_cast<std::size_t>(channel.transponder) % pidPlans.size()];
    channel.apid = plan.audio + index * plan.audioStep;
    channel.pcr = channel.apid;
    if (lineup.theme == Radio) {
      if (dice.Roll(4) == 0) channel.vpid = 0;
    } else {
      channel.vpid = plan.video + index * plan.videoStep;
      channel.pcr = dice.Roll(14) == 0 ? 8190 : channel.vpid;
    }
    if (lineup.coding == freeToAir) return;
    channel.vecm = 4096 + lineup.coding * 8 + index;
    channel.aecm = lineup.coding == 0x64 ? channel.vecm + 100 : channel.vecm;
  }

  Dice dice;
  std::map<Package, Position> positions;
  std::map<int, int> services;
  std::vector<std::optional<Listed>> slots;
};

std::vector<std::optional<Listed>> ListedChannels() {
  ListBuilder builder;
  for (const Lineup& lineup : lineups) builder.Add(lineup);
  return builder.Take();
}

struct Shelf {
  const char* name;
  Theme theme;
  std::size_t room;
};

constexpr Shelf shelves[] = {{"Cinema", Cinema, 40},   {"Sport", Sport, 32},  {"Notizie", News, 20},
                             {"Musica", Music, 16},    {"Ragazzi", Kids, 14}, {"Radio", Radio, 48},
                             {"Cultura", Culture, 24}, {"Città", Local, 28}};

}  // namespace

const std::vector<DemoTransponder>& DemoTransponders() {
  static const std::vector<DemoTransponder> transponders = [] {
    std::vector<DemoTransponder> list;
    for (const Carrier& carrier : carriers) list.push_back(TransponderOf(carrier));
    return list;
  }();
  return transponders;
}

std::vector<std::optional<DemoChannel>> DemoChannels() {
  std::vector<std::optional<DemoChannel>> channels;
  for (std::optional<Listed>& slot : ListedChannels()) {
    channels.push_back(slot ? std::optional(std::move(slot->channel)) : std::nullopt);
  }
  return channels;
}

std::vector<DemoFavourites> DemoFavouriteLists() {
  const std::vector<std::optional<Listed>> listed = ListedChannels();
  std::vector<DemoFavourites> lists;
  Dice dice;
  for (const Shelf& shelf : shelves) {
    std::vector<int> slots;
    for (std::size_t i = 0; i < listed.size() && slots.size() < shelf.room; ++i) {
      const bool fits =
          listed[i] && listed[i]->theme == shelf.theme && (listed[i]->channel.flags & activeBit) != 0;
      if (fits && dice.Roll(4) > 0) slots.push_back(static_cast<int>(i) + 1);
    }
    std::swap(slots.front(), slots[static_cast<std::size_t>(dice.Roll(8))]);
    lists.push_back({shelf.name, std::move(slots)});
  }
  return lists;
}

}  // namespace Samples
