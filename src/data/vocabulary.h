// The words that files and code share: option keys, kinds of attached files, status words and the
// commands of update scripts. Element and attribute names stand in the record tables instead.
#pragma once

#include <QLatin1String>

// QLatin1String measures its text at run time unless it is told the length.
template <size_t Size>
constexpr QLatin1String word(const char (&text)[Size])
{
    return QLatin1String(text, int(Size) - 1);
}

namespace optionKey {
constexpr QLatin1String editZp = word("EDIT_ZP");
constexpr QLatin1String editConfig = word("EDIT_CONFIG");
constexpr QLatin1String editDatabase = word("EDIT_DATABASE");
constexpr QLatin1String editFirm = word("EDIT_FIRM");
constexpr QLatin1String emailMapi = word("EMAIL_MAPI");
constexpr QLatin1String openReportHtml = word("OPEN_REPORT_HTML");
constexpr QLatin1String fontName = word("FONT_NAME");
constexpr QLatin1String fontSize = word("FONT_SIZE");
constexpr QLatin1String thresholdLow = word("THRESHOLD_LOW");
constexpr QLatin1String thresholdAverage = word("THRESHOLD_AVERAGE");
constexpr QLatin1String thresholdHigh = word("THRESHOLD_HIGH");
constexpr QLatin1String orderTarget = word("ORDER_TARGET");
constexpr QLatin1String orderDateAdd = word("ORDER_DATE_ADD");
constexpr QLatin1String orderNumber = word("ORDER_NUMBER");
constexpr QLatin1String orderDate = word("ORDER_DATE");
constexpr QLatin1String personAuthor = word("PERSON_AUTHOR");
constexpr QLatin1String personApproved = word("PERSON_APPROVED");
constexpr QLatin1String personContractor = word("PERSON_CONTRACTOR");
constexpr QLatin1String personAdmin = word("PERSON_ADMIN");
constexpr QLatin1String fileConfig = word("FILE_CONFIG");
constexpr QLatin1String fileDbWarehouse = word("FILE_DB_WAREHOUSE");
constexpr QLatin1String fileDbService = word("FILE_DB_SERVICE");
constexpr QLatin1String fileDbAuthor = word("FILE_DB_AUTHOR");
constexpr QLatin1String fileDbMechanics = word("FILE_DB_MECHANICS");
constexpr QLatin1String fileFirm = word("FILE_FIRM");
constexpr QLatin1String fileBoms = word("FILE_BOMS");
constexpr QLatin1String fileNewZp = word("FILE_NEWZP");
constexpr QLatin1String fileLastZp = word("FILE_LASTZP");
constexpr QLatin1String loadDbWarehouse = word("LOAD_DB_WAREHOUSE");
constexpr QLatin1String loadDbService = word("LOAD_DB_SERVICE");
constexpr QLatin1String loadDbAuthor = word("LOAD_DB_AUTHOR");
constexpr QLatin1String loadDbMechanics = word("LOAD_DB_MECHANICS");
constexpr QLatin1String loadBoms = word("LOAD_BOMS");
constexpr QLatin1String ordersFolders = word("ORDERS_FOLDERS");
constexpr QLatin1String bomAttrition = word("BOM_ATTRITION");
constexpr QLatin1String bomMultiple = word("BOM_MULTIPLE");
constexpr QLatin1String orderThresholds = word("ORDER_THRESHOLDS");
constexpr QLatin1String vatRate = word("VAT_RATE");
constexpr QLatin1String updateAddress = word("UPDATE_ADDRESS");
constexpr QLatin1String updateUnsigned = word("UPDATE_UNSIGNED");
constexpr QLatin1String storeAddress = word("STORE_ADDRESS");
constexpr QLatin1String pathBackup = word("PATH_BACKUP");
constexpr QLatin1String backupCount = word("BACKUP_COUNT");
constexpr QLatin1String language = word("LANGUAGE");
constexpr QLatin1String archivePassword = word("ARCHIVE_PASSWORD");
constexpr QLatin1String serverName = word("SERVER_NAME");
constexpr QLatin1String serverUserName = word("SERVER_USER_NAME");
constexpr QLatin1String serverUserPassword = word("SERVER_USER_PASSWORD");
} // namespace optionKey

namespace statusWord {
constexpr QLatin1String grey = word("SZARY");
constexpr QLatin1String blue = word("NIEBIESKI");
constexpr QLatin1String green = word("ZIELONY");
constexpr QLatin1String violet = word("FIOLETOWY");
constexpr QLatin1String low = word("NISKIE");
constexpr QLatin1String high = word("WYSOKIE");
constexpr QLatin1String yes = word("TAK");
constexpr QLatin1String no = word("NIE");
// The yes of editable options.
constexpr QLatin1String editableYes = word("YES");
} // namespace statusWord

namespace updateCommand {
constexpr QLatin1String removeFile = word("remove_file");
constexpr QLatin1String removeDirectory = word("remove_directory");
constexpr QLatin1String copyFile = word("copy_file");
constexpr QLatin1String downloadFile = word("download_file");
constexpr QLatin1String extractZip = word("extract_zip");
constexpr QLatin1String closeAndRunExe = word("close_and_run_exe");
constexpr QLatin1String openFile = word("open_file");
constexpr QLatin1String openHelp = word("open_help");
constexpr QLatin1String loadPrevConfig = word("load_prev_config");
} // namespace updateCommand
