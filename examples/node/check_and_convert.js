// Checks a CSV file and turns it into a document in memory. Prints its errors or what came out.
//
//     node check_and_convert.js ADDON.node FILE.csv
'use strict';

const path = require('path');

const KEY = 1;

// One entry "record-column-code" a line.
function printErrors(result) {
    console.log(result.detailErrorInfo.replace(/,/g, '\n'));
}

function run(library, file) {
    const check = library.elCsvCheck(file, KEY);
    if (check.result !== 'S_OK') {
        printErrors(check);
        return 1;
    }
    const filed = library.elCsvConvMok(
        KEY, '90101', '9900000000000017', null, '9990000000017', '見本&例証券株式会社',
        '紙原県見本市例町１丁目２番３号　見本ビル９階', '見本　太郎', '9900000000000025',
        '例田税理士事務所　例田　花子', '紙原県雛形市折目坂４－５－６', check.procId);
    if (filed.result !== 'S_OK') {
        printErrors(filed);
        return 1;
    }
    const size = Buffer.byteLength(filed.mokData, 'utf8');
    console.log(`${check.procId}: ${check.recordCount} records, a document of ${size} bytes`);
    return 0;
}

if (process.argv.length !== 4) {
    console.error(`usage: node ${path.basename(__filename)} ADDON.node FILE.csv`);
    process.exitCode = 2;
} else {
    const library = require(path.resolve(process.argv[2]));
    try {
        process.exitCode = run(library, process.argv[3]);
    } finally {
        library.terminate();
    }
}
