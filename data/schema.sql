-- The store's tables. Built once into the blank store at first start; the
-- seed tables are filled from data/seed/*.csv, every other table by the game.
-- Tables are STRICT so that a float written to an integer column is an error.
-- An INTEGER PRIMARY KEY is the row's key and its index: the seeks by Id in
-- FName and LName go through it.

-- Seed tables.

CREATE TABLE LeagueSetup (
  Id INTEGER PRIMARY KEY,
  Conference TEXT,
  SchedType TEXT,
  Challenge INTEGER DEFAULT 0,
  Week INTEGER DEFAULT 0,
  Day TEXT
) STRICT;

CREATE TABLE TeamSetup (
  SchoolName TEXT PRIMARY KEY,
  State TEXT,
  Location TEXT,
  Area TEXT,
  Population INTEGER,
  Colors TEXT,
  ArenaCapacity INTEGER,
  Conference TEXT,
  Region TEXT,
  Division TEXT,
  Prestige INTEGER,
  SchedGroup TEXT
) STRICT;

CREATE TABLE LowLeagueSetup (
  SchoolName TEXT PRIMARY KEY,
  State TEXT,
  Location TEXT,
  Area TEXT,
  Population INTEGER,
  Colors TEXT,
  ArenaCapacity INTEGER,
  Conference TEXT,
  Region TEXT,
  Division TEXT,
  Prestige INTEGER,
  SchedGroup TEXT
) STRICT;

CREATE TABLE FName (
  Id INTEGER PRIMARY KEY,
  FirstName TEXT
) STRICT;

CREATE TABLE LName (
  Id INTEGER PRIMARY KEY,
  LastName TEXT
) STRICT;

CREATE TABLE HighSchool (
  Region TEXT,
  HighSchool TEXT,
  HomeTown TEXT,
  State TEXT,
  Area TEXT
) STRICT;

CREATE TABLE InjuryList (
  InjuryID INTEGER PRIMARY KEY,
  InjuryName TEXT,
  WeeksOut INTEGER
) STRICT;

CREATE TABLE NBASetup (
  id INTEGER PRIMARY KEY,
  Team TEXT
) STRICT;

CREATE TABLE Cities (
  Id INTEGER PRIMARY KEY,
  City TEXT,
  State TEXT,
  Region TEXT,
  Second INTEGER DEFAULT 0,
  Regional INTEGER DEFAULT 0,
  Final INTEGER DEFAULT 0,
  PotFinal INTEGER DEFAULT 0
) STRICT;

-- Core tables.

CREATE TABLE Config (
  IdConfig INTEGER PRIMARY KEY,
  CurrWeek INTEGER DEFAULT 1,
  CurrDay TEXT,
  CurrYear INTEGER DEFAULT 2001,
  Stage TEXT,
  NextId INTEGER DEFAULT 1,
  NumRecruits INTEGER DEFAULT 0,
  NumPlayers INTEGER DEFAULT 0,
  PlayByPlay INTEGER DEFAULT 0,
  Autosave INTEGER DEFAULT 0,
  SimSpeed INTEGER DEFAULT 5,
  MaxGameNo INTEGER DEFAULT 0,
  -- The dynasty's random seed; NULL when its randomness comes from the clock.
  Seed INTEGER
) STRICT;

CREATE TABLE League (
  Id INTEGER PRIMARY KEY,
  Conference TEXT,
  SchedType TEXT,
  Challenge INTEGER DEFAULT 0,
  Week INTEGER DEFAULT 0,
  Day TEXT
) STRICT;

CREATE TABLE Team (
  SchoolName TEXT PRIMARY KEY,
  State TEXT,
  Location TEXT,
  Area TEXT,
  Region TEXT,
  Population INTEGER DEFAULT 0,
  ArenaCapacity INTEGER DEFAULT 0,
  Colors TEXT,
  Conference TEXT,
  Division TEXT,
  SchedGroup TEXT,
  InitialPrestige INTEGER DEFAULT 0,
  Prestige REAL DEFAULT 0,
  Owner TEXT,
  TeamRating INTEGER DEFAULT 0,
  ScheduleStrength REAL DEFAULT 0,
  TVGames INTEGER DEFAULT 0,
  Scholarships INTEGER DEFAULT 0,
  TopPG INTEGER DEFAULT 0,
  TopSG INTEGER DEFAULT 0,
  TopSF INTEGER DEFAULT 0,
  TopPF INTEGER DEFAULT 0,
  TopC INTEGER DEFAULT 0,
  ClassRank INTEGER DEFAULT 0,
  ClassPoints REAL DEFAULT 0,
  PG1 INTEGER DEFAULT 0,
  SG1 INTEGER DEFAULT 0,
  SF1 INTEGER DEFAULT 0,
  PF1 INTEGER DEFAULT 0,
  C1 INTEGER DEFAULT 0,
  PG2 INTEGER DEFAULT 0,
  SG2 INTEGER DEFAULT 0,
  SF2 INTEGER DEFAULT 0,
  PF2 INTEGER DEFAULT 0,
  C2 INTEGER DEFAULT 0,
  PG3 INTEGER DEFAULT 0,
  SG3 INTEGER DEFAULT 0,
  SF3 INTEGER DEFAULT 0,
  PF3 INTEGER DEFAULT 0,
  C3 INTEGER DEFAULT 0,
  Inactive INTEGER DEFAULT 0,
  Tempo TEXT,
  OffenseType TEXT,
  Defense TEXT,
  Press TEXT,
  Winner INTEGER DEFAULT 0,
  ACTWinner INTEGER DEFAULT 0,
  NCTFinalFour INTEGER DEFAULT 0,
  ACTFinalFour INTEGER DEFAULT 0,
  ConfChamps INTEGER DEFAULT 0,
  NCTChamps INTEGER DEFAULT 0,
  ACTChamps INTEGER DEFAULT 0,
  NCTApps INTEGER DEFAULT 0,
  NCTWins INTEGER DEFAULT 0,
  NCTLosses INTEGER DEFAULT 0,
  NCTFinalFourApps INTEGER DEFAULT 0,
  ACTApps INTEGER DEFAULT 0,
  ACTWins INTEGER DEFAULT 0,
  ACTLosses INTEGER DEFAULT 0,
  ACTFinalFourApps INTEGER DEFAULT 0,
  OverallWins INTEGER DEFAULT 0,
  OverallGames INTEGER DEFAULT 0
) STRICT;

CREATE TABLE ScrubTeam (
  SchoolName TEXT PRIMARY KEY,
  Conference TEXT,
  Region TEXT,
  InitialPrestige INTEGER DEFAULT 0,
  Prestige REAL DEFAULT 0,
  OffCoach INTEGER DEFAULT 0,
  DefCoach INTEGER DEFAULT 0,
  Trainer INTEGER DEFAULT 0,
  Winner INTEGER DEFAULT 0,
  ACTWinner INTEGER DEFAULT 0,
  NCTFinalFour INTEGER DEFAULT 0,
  ACTFinalFour INTEGER DEFAULT 0,
  TeamRating INTEGER DEFAULT 0,
  Wins INTEGER DEFAULT 0,
  Losses INTEGER DEFAULT 0,
  PG1 INTEGER DEFAULT 0,
  SG1 INTEGER DEFAULT 0,
  SF1 INTEGER DEFAULT 0,
  PF1 INTEGER DEFAULT 0,
  C1 INTEGER DEFAULT 0,
  PG2 INTEGER DEFAULT 0,
  SG2 INTEGER DEFAULT 0,
  SF2 INTEGER DEFAULT 0,
  PF2 INTEGER DEFAULT 0,
  C2 INTEGER DEFAULT 0,
  PG3 INTEGER DEFAULT 0,
  SG3 INTEGER DEFAULT 0,
  SF3 INTEGER DEFAULT 0,
  PF3 INTEGER DEFAULT 0,
  C3 INTEGER DEFAULT 0,
  Inactive INTEGER DEFAULT 0,
  Tempo TEXT,
  OffenseType TEXT,
  Defense TEXT,
  Press TEXT
) STRICT;

CREATE TABLE Player (
  Id INTEGER PRIMARY KEY,
  Name TEXT,
  AbbrName TEXT,
  PlayerYear TEXT,
  HomeTown TEXT,
  HighSchool TEXT,
  Team TEXT,
  Height TEXT,
  PlayerPosition INTEGER DEFAULT 0,
  AvoidInjury INTEGER DEFAULT 0,
  Health TEXT,
  TimeInjured INTEGER DEFAULT 0,
  Potential INTEGER DEFAULT 0,
  Intelligence INTEGER DEFAULT 0,
  GPA REAL DEFAULT 0,
  NBAFlag INTEGER DEFAULT 0,
  Homesick INTEGER DEFAULT 0,
  PlayWinner INTEGER DEFAULT 0,
  Jumpshot INTEGER DEFAULT 0,
  InScoring INTEGER DEFAULT 0,
  Range INTEGER DEFAULT 0,
  ThreePoint INTEGER DEFAULT 0,
  FreeThrow INTEGER DEFAULT 0,
  PerrDefense INTEGER DEFAULT 0,
  PostDefense INTEGER DEFAULT 0,
  DefReb INTEGER DEFAULT 0,
  OffReb INTEGER DEFAULT 0,
  ShotBlock INTEGER DEFAULT 0,
  Steal INTEGER DEFAULT 0,
  OffRebounding INTEGER DEFAULT 0,
  DefRebounding INTEGER DEFAULT 0,
  Handling INTEGER DEFAULT 0,
  OffAware INTEGER DEFAULT 0,
  DefAware INTEGER DEFAULT 0,
  Passing INTEGER DEFAULT 0,
  Jumping INTEGER DEFAULT 0,
  Quickness INTEGER DEFAULT 0,
  Endurance INTEGER DEFAULT 0,
  Strength INTEGER DEFAULT 0,
  Reach INTEGER DEFAULT 0,
  AthleticGrade TEXT,
  ScoreGrade TEXT,
  ShootingGrade TEXT,
  OutsideShootGrade TEXT,
  ReboundGrade TEXT,
  PerrDefenseGrade TEXT,
  PostDefenseGrade TEXT,
  HandlingGrade TEXT,
  PassingGrade TEXT,
  PotentialGrade TEXT,
  Overall REAL DEFAULT 0,
  ScoutOverall REAL DEFAULT 0,
  Redshirt INTEGER DEFAULT 0,
  Inactive INTEGER DEFAULT 0,
  Suspended INTEGER DEFAULT 0,
  SubPattern TEXT,
  InjuryUpdate INTEGER DEFAULT 0
) STRICT;

CREATE TABLE ScrubPlayer (
  Id INTEGER PRIMARY KEY,
  Name TEXT,
  AbbrName TEXT,
  Height TEXT,
  PlayerPosition INTEGER DEFAULT 0,
  Team TEXT,
  AvoidInjury INTEGER DEFAULT 0,
  Health TEXT,
  TimeInjured INTEGER DEFAULT 0,
  Reach INTEGER DEFAULT 0,
  PlayerYear TEXT,
  Overall REAL DEFAULT 0,
  Intelligence INTEGER DEFAULT 0,
  Jumpshot INTEGER DEFAULT 0,
  InScoring INTEGER DEFAULT 0,
  Range INTEGER DEFAULT 0,
  ThreePoint INTEGER DEFAULT 0,
  FreeThrow INTEGER DEFAULT 0,
  PerrDefense INTEGER DEFAULT 0,
  PostDefense INTEGER DEFAULT 0,
  DefReb INTEGER DEFAULT 0,
  OffReb INTEGER DEFAULT 0,
  ShotBlock INTEGER DEFAULT 0,
  Steal INTEGER DEFAULT 0,
  OffRebounding INTEGER DEFAULT 0,
  DefRebounding INTEGER DEFAULT 0,
  Handling INTEGER DEFAULT 0,
  OffAware INTEGER DEFAULT 0,
  DefAware INTEGER DEFAULT 0,
  Passing INTEGER DEFAULT 0,
  Jumping INTEGER DEFAULT 0,
  Quickness INTEGER DEFAULT 0,
  Endurance INTEGER DEFAULT 0,
  Strength INTEGER DEFAULT 0,
  Potential INTEGER DEFAULT 0,
  Inactive INTEGER DEFAULT 0,
  ScoutOverall REAL DEFAULT 0,
  Games INTEGER DEFAULT 0,
  PPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  SPG REAL DEFAULT 0,
  TOPG REAL DEFAULT 0,
  BPG REAL DEFAULT 0,
  MPG REAL DEFAULT 0
) STRICT;

CREATE TABLE Recruit (
  Id INTEGER PRIMARY KEY,
  Region TEXT,
  Area TEXT,
  RecruitType TEXT,
  ScoutingReport TEXT,
  Team1 TEXT,
  Team2 TEXT,
  Team3 TEXT,
  PPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  TOs REAL DEFAULT 0,
  SPG REAL DEFAULT 0,
  GPA REAL DEFAULT 0,
  TeamChoice TEXT,
  InEligible INTEGER DEFAULT 0,
  TestScore INTEGER DEFAULT 0,
  RankPoints REAL DEFAULT 0,
  PosRank INTEGER DEFAULT 0,
  Top50Rank INTEGER DEFAULT 0
) STRICT;

CREATE TABLE League1Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League2Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League3Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League4Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League5Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League6Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League7Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League8Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE League9Schedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE NonConfSchedule (
  GameNo INTEGER,
  Week INTEGER,
  GameDay TEXT,
  HomeTeam TEXT,
  AwayTeam TEXT,
  HomeConf TEXT,
  AwayConf TEXT,
  GameType TEXT,
  HomeScore INTEGER DEFAULT 0,
  AwayScore INTEGER DEFAULT 0,
  HomePoints TEXT,
  HomeRebounds TEXT,
  AwayPoints TEXT,
  AwayRebounds TEXT,
  GameLog TEXT,
  BoxScore TEXT
) STRICT;

CREATE TABLE Coach (
  Id INTEGER PRIMARY KEY,
  Name TEXT,
  Team TEXT,
  Ambition INTEGER DEFAULT 0,
  RecruitRegion TEXT,
  RecruitAbility INTEGER DEFAULT 0,
  PGDev INTEGER DEFAULT 0,
  SGDev INTEGER DEFAULT 0,
  SFDev INTEGER DEFAULT 0,
  PFDev INTEGER DEFAULT 0,
  CDev INTEGER DEFAULT 0,
  OffCoach INTEGER DEFAULT 0,
  DefCoach INTEGER DEFAULT 0,
  Salary INTEGER DEFAULT 0,
  OffPoints INTEGER DEFAULT 0,
  DefPoints INTEGER DEFAULT 0,
  RecPoints INTEGER DEFAULT 0
) STRICT;

CREATE TABLE Trainer (
  Id INTEGER PRIMARY KEY,
  Name TEXT,
  Team TEXT,
  Ability INTEGER DEFAULT 0,
  Salary INTEGER DEFAULT 0
) STRICT;

-- Staff, statistics, history and working tables.

CREATE TABLE Scout (
  Id INTEGER PRIMARY KEY,
  Name TEXT,
  Team TEXT,
  Potential INTEGER DEFAULT 0,
  Scoring INTEGER DEFAULT 0,
  Defending INTEGER DEFAULT 0,
  Rebounding INTEGER DEFAULT 0,
  Handling INTEGER DEFAULT 0,
  Espionage INTEGER DEFAULT 0,
  Salary INTEGER DEFAULT 0
) STRICT;

CREATE TABLE HeadCoach (
  Id INTEGER PRIMARY KEY,
  Name TEXT,
  Team TEXT,
  Expectations INTEGER DEFAULT 0,
  Seasons INTEGER DEFAULT 0,
  Wins INTEGER DEFAULT 0,
  Losses INTEGER DEFAULT 0,
  ConfChamps INTEGER DEFAULT 0,
  NCTApps INTEGER DEFAULT 0,
  NCTWins INTEGER DEFAULT 0,
  NCTLosses INTEGER DEFAULT 0,
  NCTFinalFour INTEGER DEFAULT 0,
  NCTChamps INTEGER DEFAULT 0,
  ACTApps INTEGER DEFAULT 0,
  ACTWins INTEGER DEFAULT 0,
  ACTLosses INTEGER DEFAULT 0,
  ACTFinalFour INTEGER DEFAULT 0,
  ACTChamps INTEGER DEFAULT 0,
  FirstRound INTEGER DEFAULT 0,
  PrestigeChange REAL DEFAULT 0,
  Rating REAL DEFAULT 0,
  Strikes INTEGER DEFAULT 0,
  JobYear INTEGER DEFAULT 0
) STRICT;

CREATE TABLE TeamStats (
  SchoolName TEXT PRIMARY KEY,
  TotalWins INTEGER DEFAULT 0,
  TotalLosses INTEGER DEFAULT 0,
  HomeWins INTEGER DEFAULT 0,
  HomeLosses INTEGER DEFAULT 0,
  AwayWins INTEGER DEFAULT 0,
  AwayLosses INTEGER DEFAULT 0,
  ConfWins INTEGER DEFAULT 0,
  ConfLosses INTEGER DEFAULT 0,
  WinPercent REAL DEFAULT 0,
  Points INTEGER DEFAULT 0,
  Shots INTEGER DEFAULT 0,
  ShotsMade INTEGER DEFAULT 0,
  Threes INTEGER DEFAULT 0,
  ThreesMade INTEGER DEFAULT 0,
  FreeThrows INTEGER DEFAULT 0,
  FTMade INTEGER DEFAULT 0,
  OffRebounds INTEGER DEFAULT 0,
  DefRebounds INTEGER DEFAULT 0,
  Assists INTEGER DEFAULT 0,
  Turnovers INTEGER DEFAULT 0,
  Steals INTEGER DEFAULT 0,
  ShotBlocks INTEGER DEFAULT 0,
  Fouls INTEGER DEFAULT 0,
  PointsAllowed INTEGER DEFAULT 0,
  ShotsAllowed INTEGER DEFAULT 0,
  ShotsMadeAllowed INTEGER DEFAULT 0,
  ThreesAllowed INTEGER DEFAULT 0,
  ThreesMadeAllowed INTEGER DEFAULT 0,
  FTAllowed INTEGER DEFAULT 0,
  FTMadeAllowed INTEGER DEFAULT 0,
  OffReboundsAllowed INTEGER DEFAULT 0,
  DefReboundsAllowed INTEGER DEFAULT 0,
  AssistsAllowed INTEGER DEFAULT 0,
  TurnoversAllowed INTEGER DEFAULT 0,
  StealsAllowed INTEGER DEFAULT 0,
  ShotBlocksAllowed INTEGER DEFAULT 0,
  FoulsAgainst INTEGER DEFAULT 0,
  FGPercent REAL DEFAULT 0,
  ThreePercent REAL DEFAULT 0,
  FTPercent REAL DEFAULT 0,
  PPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  BPG REAL DEFAULT 0,
  SPG REAL DEFAULT 0,
  TOPG REAL DEFAULT 0,
  FGPercentAllowed REAL DEFAULT 0,
  ThreePercentAllowed REAL DEFAULT 0,
  FTpercentAllowed REAL DEFAULT 0,
  PPGAllowed REAL DEFAULT 0,
  APGAllowed REAL DEFAULT 0,
  RPGAllowed REAL DEFAULT 0,
  BPGAllowed REAL DEFAULT 0,
  SPGAllowed REAL DEFAULT 0,
  TOPGAllowed REAL DEFAULT 0
) STRICT;

CREATE TABLE PlayerStats (
  Id INTEGER PRIMARY KEY,
  Games INTEGER DEFAULT 0,
  Minutes INTEGER DEFAULT 0,
  Points INTEGER DEFAULT 0,
  Shots INTEGER DEFAULT 0,
  ShotsMade INTEGER DEFAULT 0,
  Threes INTEGER DEFAULT 0,
  ThreesMade INTEGER DEFAULT 0,
  FreeThrows INTEGER DEFAULT 0,
  FTMade INTEGER DEFAULT 0,
  OffRebounds INTEGER DEFAULT 0,
  DefRebounds INTEGER DEFAULT 0,
  Assists INTEGER DEFAULT 0,
  Steals INTEGER DEFAULT 0,
  ShotBlocks INTEGER DEFAULT 0,
  Turnovers INTEGER DEFAULT 0,
  Fouls INTEGER DEFAULT 0,
  PlusMinus INTEGER DEFAULT 0,
  PPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  SPG REAL DEFAULT 0,
  BPG REAL DEFAULT 0,
  TOPG REAL DEFAULT 0,
  MPG REAL DEFAULT 0,
  FGPercent REAL DEFAULT 0,
  ThreePercent REAL DEFAULT 0,
  FTPercent REAL DEFAULT 0,
  AwardScore REAL DEFAULT 0
) STRICT;

CREATE TABLE CareerPlayerStats (
  Id INTEGER PRIMARY KEY,
  Games INTEGER DEFAULT 0,
  Minutes INTEGER DEFAULT 0,
  Points INTEGER DEFAULT 0,
  Shots INTEGER DEFAULT 0,
  ShotsMade INTEGER DEFAULT 0,
  Threes INTEGER DEFAULT 0,
  ThreesMade INTEGER DEFAULT 0,
  FreeThrows INTEGER DEFAULT 0,
  FTMade INTEGER DEFAULT 0,
  OffRebounds INTEGER DEFAULT 0,
  DefRebounds INTEGER DEFAULT 0,
  Assists INTEGER DEFAULT 0,
  Steals INTEGER DEFAULT 0,
  ShotBlocks INTEGER DEFAULT 0,
  Turnovers INTEGER DEFAULT 0,
  PPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  SPG REAL DEFAULT 0,
  BPG REAL DEFAULT 0,
  TOPG REAL DEFAULT 0,
  MPG REAL DEFAULT 0,
  FGPercent REAL DEFAULT 0,
  ThreePercent REAL DEFAULT 0,
  FTPercent REAL DEFAULT 0,
  Fouls INTEGER DEFAULT 0,
  PlusMinus INTEGER DEFAULT 0
) STRICT;

CREATE TABLE PlayerYearStats (
  PlayerId INTEGER,
  Year INTEGER,
  PPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  SPG REAL DEFAULT 0,
  BPG REAL DEFAULT 0,
  TOPG REAL DEFAULT 0,
  MPG REAL DEFAULT 0,
  FGPercent REAL DEFAULT 0,
  ThreePercent REAL DEFAULT 0,
  FTPercent REAL DEFAULT 0,
  PlusMinus REAL DEFAULT 0,
  Overall REAL DEFAULT 0,
  Jumpshot INTEGER DEFAULT 0,
  InScoring INTEGER DEFAULT 0,
  Handling INTEGER DEFAULT 0,
  Passing INTEGER DEFAULT 0,
  PerrDefense INTEGER DEFAULT 0,
  PRIMARY KEY (PlayerId, Year)
) STRICT;

CREATE TABLE WeekAward (
  id INTEGER PRIMARY KEY,
  Games INTEGER DEFAULT 0,
  Points INTEGER DEFAULT 0,
  Rebounds INTEGER DEFAULT 0,
  Assists INTEGER DEFAULT 0,
  Steals INTEGER DEFAULT 0,
  ShotBlocks INTEGER DEFAULT 0,
  Turnovers INTEGER DEFAULT 0,
  Score REAL DEFAULT 0
) STRICT;

CREATE TABLE AwardWinners (
  Id INTEGER PRIMARY KEY,
  Type TEXT,
  WeekNo INTEGER DEFAULT 0,
  PlayerId INTEGER DEFAULT 0,
  PPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  SPG REAL DEFAULT 0,
  TOPG REAL DEFAULT 0,
  BPG REAL DEFAULT 0
) STRICT;

CREATE TABLE Records (
  Id INTEGER PRIMARY KEY,
  Type TEXT,
  PPGSeason REAL,
  PPGSeasonPlayer TEXT,
  PPGSeasonTeam TEXT,
  PPGSeasonYear INTEGER,
  APGSeason REAL,
  APGSeasonPlayer TEXT,
  APGSeasonTeam TEXT,
  APGSeasonYear INTEGER,
  RPGSeason REAL,
  RPGSeasonPlayer TEXT,
  RPGSeasonTeam TEXT,
  RPGSeasonYear INTEGER,
  SPGSeason REAL,
  SPGSeasonPlayer TEXT,
  SPGSeasonTeam TEXT,
  SPGSeasonYear INTEGER,
  BPGSeason REAL,
  BPGSeasonPlayer TEXT,
  BPGSeasonTeam TEXT,
  BPGSeasonYear INTEGER,
  ThreePercentSeason REAL,
  ThreePercentSeasonPlayer TEXT,
  ThreePercentSeasonTeam TEXT,
  ThreePercentSeasonYear INTEGER,
  ThreePercentCareer REAL,
  ThreePercentCareerPlayer TEXT,
  ThreePercentCareerTeam TEXT,
  ThreePercentCareerYear INTEGER,
  PointsSeason REAL,
  PointsSeasonPlayer TEXT,
  PointsSeasonTeam TEXT,
  PointsSeasonYear INTEGER,
  PointsCareer REAL,
  PointsCareerPlayer TEXT,
  PointsCareerTeam TEXT,
  PointsCareerYear INTEGER,
  AssistsSeason REAL,
  AssistsSeasonPlayer TEXT,
  AssistsSeasonTeam TEXT,
  AssistsSeasonYear INTEGER,
  AssistsCareer REAL,
  AssistsCareerPlayer TEXT,
  AssistsCareerTeam TEXT,
  AssistsCareerYear INTEGER,
  StealsSeason REAL,
  StealsSeasonPlayer TEXT,
  StealsSeasonTeam TEXT,
  StealsSeasonYear INTEGER,
  StealsCareer REAL,
  StealsCareerPlayer TEXT,
  StealsCareerTeam TEXT,
  StealsCareerYear INTEGER,
  ReboundsSeason REAL,
  ReboundsSeasonPlayer TEXT,
  ReboundsSeasonTeam TEXT,
  ReboundsSeasonYear INTEGER,
  ReboundsCareer REAL,
  ReboundsCareerPlayer TEXT,
  ReboundsCareerTeam TEXT,
  ReboundsCareerYear INTEGER,
  ShotBlocksSeason REAL,
  ShotBlocksSeasonPlayer TEXT,
  ShotBlocksSeasonTeam TEXT,
  ShotBlocksSeasonYear INTEGER,
  ShotBlocksCareer REAL,
  ShotBlocksCareerPlayer TEXT,
  ShotBlocksCareerTeam TEXT,
  ShotBlocksCareerYear INTEGER,
  ThreesMadeSeason REAL,
  ThreesMadeSeasonPlayer TEXT,
  ThreesMadeSeasonTeam TEXT,
  ThreesMadeSeasonYear INTEGER,
  ThreesMadeCareer REAL,
  ThreesMadeCareerPlayer TEXT,
  ThreesMadeCareerTeam TEXT,
  ThreesMadeCareerYear INTEGER,
  FGMadeSeason REAL,
  FGMadeSeasonPlayer TEXT,
  FGMadeSeasonTeam TEXT,
  FGMadeSeasonYear INTEGER,
  FGMadeCareer REAL,
  FGMadeCareerPlayer TEXT,
  FGMadeCareerTeam TEXT,
  FGMadeCareerYear INTEGER,
  FGPercentSeason REAL,
  FGPercentSeasonPlayer TEXT,
  FGPercentSeasonTeam TEXT,
  FGPercentSeasonYear INTEGER,
  FGPercentCareer REAL,
  FGPercentCareerPlayer TEXT,
  FGPercentCareerTeam TEXT,
  FGPercentCareerYear INTEGER,
  FTPercentSeason REAL,
  FTPercentSeasonPlayer TEXT,
  FTPercentSeasonTeam TEXT,
  FTPercentSeasonYear INTEGER,
  FTPercentCareer REAL,
  FTPercentCareerPlayer TEXT,
  FTPercentCareerTeam TEXT,
  FTPercentCareerYear INTEGER
) STRICT;

CREATE TABLE Ranking (
  SchoolName TEXT,
  TeamRanking INTEGER DEFAULT 0,
  Previous INTEGER DEFAULT 0,
  TeamPoints REAL DEFAULT 0,
  CoachRank INTEGER DEFAULT 0
) STRICT;

CREATE TABLE CRIRank (
  SchoolName TEXT,
  CRIRank INTEGER DEFAULT 0,
  CRIValue REAL DEFAULT 0,
  WinPer REAL DEFAULT 0,
  SchedStrength REAL DEFAULT 0,
  SchedRank INTEGER DEFAULT 0
) STRICT;

CREATE TABLE NCTHistory (
  Id INTEGER PRIMARY KEY,
  Year INTEGER,
  LastIn1 TEXT,
  LastIn2 TEXT,
  LastIn3 TEXT,
  LastIn4 TEXT,
  FirstOut1 TEXT,
  FirstOut2 TEXT,
  FirstOut3 TEXT,
  FirstOut4 TEXT,
  FinalFour1 TEXT,
  FinalFour2 TEXT,
  FinalFour3 TEXT,
  FinalFour4 TEXT,
  Champ TEXT
) STRICT;

CREATE TABLE ACTHistory (
  Id INTEGER PRIMARY KEY,
  Year INTEGER,
  LastIn1 TEXT,
  LastIn2 TEXT,
  LastIn3 TEXT,
  LastIn4 TEXT,
  FirstOut1 TEXT,
  FirstOut2 TEXT,
  FirstOut3 TEXT,
  FirstOut4 TEXT,
  FinalFour1 TEXT,
  FinalFour2 TEXT,
  FinalFour3 TEXT,
  FinalFour4 TEXT,
  Champ TEXT
) STRICT;

CREATE TABLE CoachHistory (
  Season INTEGER,
  Year INTEGER,
  Team TEXT,
  Wins INTEGER DEFAULT 0,
  Losses INTEGER DEFAULT 0,
  ConfWins INTEGER DEFAULT 0,
  ConfLosses INTEGER DEFAULT 0,
  ConfChamps TEXT,
  ACTRecord TEXT,
  NCTRecord TEXT,
  Summary TEXT
) STRICT;

CREATE TABLE Alumni (
  Id INTEGER,
  YearLeft INTEGER,
  Name TEXT,
  Team TEXT,
  Position TEXT,
  PPG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  APG REAL DEFAULT 0,
  NBADraft TEXT
) STRICT;

CREATE TABLE NBADraft (
  Pick INTEGER,
  Height TEXT,
  Name TEXT,
  School TEXT,
  Team TEXT,
  Position TEXT,
  PPG REAL DEFAULT 0,
  RPG REAL DEFAULT 0,
  APG REAL DEFAULT 0
) STRICT;

CREATE TABLE Development (
  PlayerId INTEGER PRIMARY KEY,
  PreShootingGrade TEXT,
  PreAthleticGrade TEXT,
  PreScoreGrade TEXT,
  PreOutsideShootGrade TEXT,
  PreReboundGrade TEXT,
  PrePerrDefenseGrade TEXT,
  PrePostDefenseGrade TEXT,
  PrePassingGrade TEXT,
  PreHandlingGrade TEXT,
  StudyInc REAL DEFAULT 0
) STRICT;

CREATE TABLE TrainPlayer (
  PlayerId INTEGER,
  Shooting INTEGER DEFAULT 0,
  Threes INTEGER DEFAULT 0,
  InsideScoring INTEGER DEFAULT 0,
  PerDefense INTEGER DEFAULT 0,
  PostDefense INTEGER DEFAULT 0,
  Rebounding INTEGER DEFAULT 0,
  Passing INTEGER DEFAULT 0,
  Handling INTEGER DEFAULT 0,
  Jumping INTEGER DEFAULT 0,
  Quickness INTEGER DEFAULT 0,
  Strength INTEGER DEFAULT 0,
  Endurance INTEGER DEFAULT 0,
  SummerSchool INTEGER DEFAULT 0
) STRICT;

CREATE TABLE RecruitDecision (
  Id INTEGER PRIMARY KEY,
  Team TEXT,
  PlayerID INTEGER DEFAULT 0,
  RecruitNo INTEGER DEFAULT 0,
  Call INTEGER DEFAULT 0,
  Assistant INTEGER DEFAULT 0,
  Visit INTEGER DEFAULT 0,
  CampusVisit INTEGER DEFAULT 0,
  WeekDecision TEXT DEFAULT 'none',
  WeekBid INTEGER DEFAULT 0,
  RecruitPoints INTEGER DEFAULT 0,
  TopBid INTEGER DEFAULT 0,
  Scholarship INTEGER DEFAULT 0
) STRICT;

CREATE TABLE TeamRecruit (
  Id INTEGER PRIMARY KEY,
  Team TEXT,
  PointsAvail INTEGER DEFAULT 0,
  Calls INTEGER DEFAULT 0,
  Assistants INTEGER DEFAULT 0,
  Visits INTEGER DEFAULT 0,
  CampusVisits INTEGER DEFAULT 0,
  Recruit1 INTEGER DEFAULT 0,
  Recruit2 INTEGER DEFAULT 0,
  Recruit3 INTEGER DEFAULT 0,
  Recruit4 INTEGER DEFAULT 0,
  Recruit5 INTEGER DEFAULT 0,
  Recruit6 INTEGER DEFAULT 0,
  Recruit7 INTEGER DEFAULT 0,
  Recruit8 INTEGER DEFAULT 0
) STRICT;

CREATE TABLE Messages (
  Id INTEGER PRIMARY KEY,
  Type TEXT,
  Week INTEGER DEFAULT 0,
  Message TEXT
) STRICT;

-- The user's inbox, every letter of the running season. Week is the week
-- whose list the letter joined, Year the dynasty's year when it was sent.
CREATE TABLE InboxMessage (
  Id INTEGER PRIMARY KEY,
  Week INTEGER DEFAULT 0,
  Year INTEGER DEFAULT 0,
  Sender TEXT,
  Subject TEXT,
  Text TEXT
) STRICT;

-- Every first-division school's poll and CRI rank at the end of each week of
-- the running season, for the charts of its progress (0: not ranked yet).
CREATE TABLE RankHistory (
  Id INTEGER PRIMARY KEY,
  Week INTEGER DEFAULT 0,
  SchoolName TEXT,
  PollRank INTEGER DEFAULT 0,
  CRIRank INTEGER DEFAULT 0
) STRICT;

CREATE TABLE ConfTourney (
  Id INTEGER PRIMARY KEY,
  SchoolName TEXT,
  Seed INTEGER DEFAULT 0,
  Conference TEXT,
  HostCity TEXT,
  Points INTEGER DEFAULT 0,
  BoldFlag INTEGER DEFAULT 0
) STRICT;

CREATE TABLE NCTTourney (
  Id INTEGER PRIMARY KEY,
  SchoolName TEXT,
  Seed INTEGER DEFAULT 0,
  Conference TEXT,
  HostCity TEXT,
  Points INTEGER DEFAULT 0,
  BoldFlag INTEGER DEFAULT 0
) STRICT;

CREATE TABLE ACTTourney (
  Id INTEGER PRIMARY KEY,
  SchoolName TEXT,
  Seed INTEGER DEFAULT 0,
  Conference TEXT,
  Points INTEGER DEFAULT 0,
  BoldFlag INTEGER DEFAULT 0
) STRICT;

CREATE TABLE PreSeasonTourney (
  Id INTEGER PRIMARY KEY,
  Seed INTEGER DEFAULT 0,
  SchoolName TEXT,
  Conference TEXT,
  HostCity TEXT
) STRICT;

-- Indexes named by the game and those its hot queries need.
CREATE INDEX PlayerIndex ON TrainPlayer (PlayerId);
CREATE INDEX HistoryIndex ON CoachHistory (Season);
CREATE INDEX HighSchoolRegion ON HighSchool (Region);
CREATE INDEX PlayerTeam ON Player (Team);
CREATE INDEX ScrubPlayerTeam ON ScrubPlayer (Team);
CREATE INDEX CoachTeam ON Coach (Team);
CREATE INDEX TrainerTeam ON Trainer (Team);
CREATE INDEX ScoutTeam ON Scout (Team);
CREATE INDEX RecruitDecisionTeam ON RecruitDecision (Team, PlayerID);
CREATE INDEX RankingSchool ON Ranking (SchoolName);
CREATE INDEX CRIRankSchool ON CRIRank (SchoolName);
CREATE INDEX RecordsType ON Records (Type);

CREATE INDEX League1ScheduleDay ON League1Schedule (Week, GameDay);
CREATE INDEX League1ScheduleGameNo ON League1Schedule (GameNo);

CREATE INDEX League2ScheduleDay ON League2Schedule (Week, GameDay);
CREATE INDEX League2ScheduleGameNo ON League2Schedule (GameNo);

CREATE INDEX League3ScheduleDay ON League3Schedule (Week, GameDay);
CREATE INDEX League3ScheduleGameNo ON League3Schedule (GameNo);

CREATE INDEX League4ScheduleDay ON League4Schedule (Week, GameDay);
CREATE INDEX League4ScheduleGameNo ON League4Schedule (GameNo);

CREATE INDEX League5ScheduleDay ON League5Schedule (Week, GameDay);
CREATE INDEX League5ScheduleGameNo ON League5Schedule (GameNo);

CREATE INDEX League6ScheduleDay ON League6Schedule (Week, GameDay);
CREATE INDEX League6ScheduleGameNo ON League6Schedule (GameNo);

CREATE INDEX League7ScheduleDay ON League7Schedule (Week, GameDay);
CREATE INDEX League7ScheduleGameNo ON League7Schedule (GameNo);

CREATE INDEX League8ScheduleDay ON League8Schedule (Week, GameDay);
CREATE INDEX League8ScheduleGameNo ON League8Schedule (GameNo);

CREATE INDEX League9ScheduleDay ON League9Schedule (Week, GameDay);
CREATE INDEX League9ScheduleGameNo ON League9Schedule (GameNo);

CREATE INDEX NonConfScheduleDay ON NonConfSchedule (Week, GameDay);
CREATE INDEX NonConfScheduleGameNo ON NonConfSchedule (GameNo);


-- The one Config row of the blank store.
INSERT INTO Config (IdConfig, CurrWeek, CurrDay, CurrYear, Stage, NextId, NumRecruits, NumPlayers,
                    PlayByPlay, Autosave, SimSpeed, MaxGameNo)
VALUES (0, 1, 'Thursday', 2001, 'Post Training', 1, 0, 0, 0, 0, 5, 0);

-- A school's seasons, one row a year, written when the season ends: its
-- record, its final poll rank and how far it went in the NCT or the ACT.
CREATE TABLE TeamHistory (
  SchoolName TEXT,
  Year INTEGER,
  Wins INTEGER DEFAULT 0,
  Losses INTEGER DEFAULT 0,
  ConfWins INTEGER DEFAULT 0,
  ConfLosses INTEGER DEFAULT 0,
  PollRank INTEGER DEFAULT 0,
  ConfChamp INTEGER DEFAULT 0,
  NCTRecord TEXT,
  ACTRecord TEXT,
  Summary TEXT,
  PRIMARY KEY (SchoolName, Year)
) STRICT;
