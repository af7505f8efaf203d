#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::english_words {

namespace {

constexpr WordRow kMeasures[] = {
    {Sense::vacant, "empty folders,empty folder,empty directories,empty directory,empty dirs,empty "
                    "subfolders,folders that are empty,folders with nothing in them,folders are empty"},
    {Sense::freed,
     "did (you|it|orlen|this app|this program|this tool|the program) (ever|) (delete|move|remove|trash|"
     "clean|free|erase),(have|has) (you|it|orlen|this app|this program|this tool|the program) (ever|) "
     "(deleted|moved|removed|trashed|cleaned|freed|reclaimed),did (you|it|orlen|this app|this program|"
     "this tool|the program) (move|put|send|throw) (to|in|into) the (trash|bin),did (you|it|orlen|this "
     "app|this program|this tool|the program) (move|put|send) there,(has|have) (you|it|orlen|this app|"
     "this program|this tool|the program) (moved|put|sent) (to|in|into) the (trash|bin),(was|were|been) "
     "(anything|something|nothing|) (deleted|removed|moved|freed|trashed),(anything|something|things) "
     "(been|) deleted,(did|have) (i|we) (free|freed|win back|won|won back|reclaim|reclaimed|regained|"
     "recovered|get back|got back),(i|we|you|orlen) freed,did (you|it|orlen) (move|put|send) "
     "(anything|something|stuff) (to|in|into) "
     "the (trash|bin)"},
    {Sense::lastUse,
     "(the|) last time i (used|ran|opened|started|launched|played|worked with|was using),(when|) did i "
     "last (use|run|open|start|launch|play),i last (use|used|run|ran|open|opened|start|started|launch|"
     "launched|play|played)"},
    {Sense::included,
     "include,including,includes,if i include,when i include,if we include,if you include,if i add,"
     "if i also include"},
    {Sense::full,
     "out of storage,nearly out of storage,nearly out of space,almost out of space,almost out of "
     "storage,running out of disk,low disk space,low space,disk space low,space low,space is low,low on "
     "storage,storage low,full,fill,fills,filling,fill up,filling up,fills up,running out,run out,runs "
     "out,out of space,no space,no room,low on space,so little space,almost full,nearly full,out of room,out "
     "of disk space,no free space,no more space,no disk space,so full,run out of space,running out of "
     "space,no space left,no free space left,run out of room,running low on space,running low,run out of "
     "disk space,running out of disk space,running out of storage,run out of storage,getting full,running "
     "out of room,used so much,so much space gone,space gone,all my space,all the space,space go,space "
     "went,storage full,not enough space,lost space,losing space,no storage left,eaten up,where did my "
     "space,filling so fast,hit the limit,low on disk,all my space gone,all my space go,my space gone,space "
     "disappear,space vanish,space disappeared,space vanished,all my storage,storage gone,disk space "
     "gone,all my disk space,so little room,little room left,little space left,so little room left,so little "
     "space left,hardly any space,hardly any room,barely any space,barely any room,almost no space,almost no "
     "room,nearly no space,not much space,not much room,no gigs left,fills my,filling my,used it all "
     "up,crammed,packed,jam-packed,topped out,maxed out,at capacity,near capacity,overflow,overflowing,reach "
     "the limit,ran out,ran out of space,use up all,used up all,use all my space,full up"},
    {Sense::free, "free,available,remaining,left,spare,unused space,unoccupied,leftover,left over,empty "
                  "space,remains,vacant,unused disk space,usable,space remaining,remaining space,gigs "
                  "free,unallocated,headroom,breathing room,leeway"},
    {Sense::total,
     "total,capacity,altogether,all together,in all,in total,overall,total size,total capacity,total "
     "space,status,overview,summary"},
    {Sense::disk, "disk,disks,drive,drives,hard drive,hard "
                  "disk,ssd,hdd,storage,computer,laptop,machine,pc,volume,partition,mac,disc,my "
                  "disk,harddrive,harddisk,notebook,nvme"},
    {Sense::space, "store,space,room,disk space,storage space,place,drive space,gb of space,memory,gigabytes "
                   "of space,fit,fits"},
    {Sense::howMuch,
     "what would i have,what would be free,what would be left,what would i have left,what does that give "
     "me,what does that give,what would that give me,what do i get back,what would i get "
     "back,what would that bring,how much,how mutch,how mcuh,howmuch,what do i gain,what would i gain,what "
     "do i get,what would i "
     "get,what do i save,what would i save,what would that free,what does that free,what does it bring"},
    {Sense::why, "why,how come,what's the reason,what made,reason,what makes,why's,for what reason,why "
                 "so,why is that,why that,reasons,whats the reason,hows come,what's causing,what "
                 "caused,whats causing,caused,cause,causes,causing,because of what,what is causing,explain "
                 "why,tell me why,what happened to"},
    {Sense::when, "when,how soon,how long,what date,which date,what day,which day,how many days,how many "
                  "weeks,how many months,by when,until when,what month,which month,when's,how long until,how "
                  "long till,how long before,when will,how many years,soon,how much longer,how much time"},
    {Sense::most,
     "most,the most,most space,most of,most room,most storage,most disk space,biggest "
     "chunk,fastest,quickest,most quickly,most rapidly,the fastest,the quickest,bulk of,lion's share,largest "
     "share,main culprit,main culprits,culprit,culprits,to blame,responsible,the culprit,worst "
     "offender,worst offenders,offenders,offender"},
    {Sense::takes,
     "takes,taking,take,takes up,taking up,take up,hogging,hog,hogs,eating,eats,eat,eating "
     "up,using,uses,use,using up,uses up,use "
     "up,wasting,wastes,occupy,occupies,occupying,consume,consumes,consuming,waste,space hogs,space "
     "hog,needs,clogging,clogs,clog,clogging up,wasted,space eaters,heavy,gobbling up,gobbling"},
    {Sense::biggest,
     "sorted by space,biggest,largest,heaviest,top,bulkiest,greatest,largest "
     "sized,fattest,longest,large,big,huge,giant,enormous,massive,gigantic,bigest,sorted by size,by "
     "size,hugest,chunkiest,chunky,beefiest,beefy,bulky,monster,hefty,giants,massive "
     "ones,whopper,whoppers,sizeable,sizable,biggies,colossal,ranked by size,biggest to smallest,weighty"},
    {Sense::smallest, "smallest,tiniest,lightest,small,tiny"},
    {Sense::oldest, "oldest,most ancient,old,ancient,outdated,earliest,stalest,vintage,from long "
                    "ago,aged,elderly,antique,dated,eldest"},
    {Sense::newest, "(did i|have i|did we|have we) (change|changed|edit|edited|modify|modified),did i "
                    "add,have i added,did i create,have i created,i created,created,of "
                    "late,newest,most recent,latest,youngest,recent,recently changed,new,recently added,most "
                    "recently,changed,modified,edited,altered,came in,appeared,were added,was "
                    "added,added,arrived,last added,freshest,fresh,last modified,last changed,last "
                    "edited,just downloaded,recently downloaded,just added,brand new,newly added"},
    {Sense::grow,
     "(going|creeping|gone|went) "
     "up,rising,risen,rises,climbing,grow,grows,growing,grew,grown,growth,increased,got bigger,gotten "
     "bigger,got larger,became "
     "bigger,increase,gained,changed in size,swelled,swollen,ballooned,become bigger,become larger,become "
     "big,gotten larger,get bigger,getting bigger,getting larger,getting big,got fatter,get larger,how much "
     "more space did,how much more did,how much bigger did,how much bigger "
     "has,expanded,expand,expanding,blew up,exploded,piled up,piling up,accumulated,gaining,gains,got "
     "big,become so big,become so large,gets bigger,gets larger,put on weight,inflated,bloated,increasing"},
    {Sense::above, "compare,compared to,compared with,versus,vs,over,above,larger than,bigger than,more "
                   "than,at least,greater than,exceeding,no smaller "
                   "than,heavier than,or more,or larger,or bigger,and up,and above,and bigger,and "
                   "larger,bigger then,larger then,more then,minimum,upwards of,>,between"},
    {Sense::below, "under,below,smaller than,less than,at most,fewer than,up to,or less,or smaller,no more "
                   "than,no larger than,no bigger than,smaller then,less then,maximum,<"},
    {Sense::inside, "in,inside,in all my,in all of my,in all the,across all my,across my,throughout "
                    "my,within,from,in the folder,in my,under the folder"},
    {Sense::unopened,
     "not opened,haven't opened,not used,haven't used,unopened,never opened,not touched,haven't "
     "touched,unused,not been opened,haven't been opened,i haven't opened,didn't open,have not opened,not "
     "accessed,havent opened,haven't i opened,not looked at,have not used,have i not opened,haven't i "
     "used,forgotten,not been used,hardly ever opened,no longer use,never open,never use,don't use,dont "
     "use,rarely use,rarely used,don't open,haven't been used,haven't been touched,no longer used,haven't "
     "looked at,haven't watched,untouched since,forgot about,i forgot,not watched,not in use,not "
     "watch,haven't listened,not listened,never watched,never played,not play,don't watch,never "
     "listened,dusty,collecting dust,gathering dust,neglected,abandoned,ignored,stale,idle,not needed "
     "since,unwatched,unread,not read,unplayed,last opened,last used,last accessed,last viewed,last watched"},
    {Sense::before, "before,older than,earlier than,prior to,more than ago,older then,till,until"},
    {Sense::since, "since the beginning of,since the start of,since beginning of,since start of,since,newer "
                   "than,younger than,newer then,starting from,beginning with"},
    {Sense::after, "after,later than"},
    {Sense::last, "last,previous,most recent clean-up,past,last time,latest clean-up"},
    {Sense::privacy,
     "you look into my,you look in my,you look at my,you look through my,you read my,you see my,you go "
     "through my,you open my,you access my,it read my,it look at my,it look into my,see my documents,see my "
     "stuff,see my data,look at my files,look at my photos,look at my data,look into "
     "my files,look in my passwords,look at my passwords,read my files,read my documents,read my emails,read "
     "my mail,read my messages,my company see,your company,at your company,stay on my computer,stays on my "
     "computer,stay on this computer,stays on this computer,need internet,need the internet,need wifi,need a "
     "connection,work offline,works offline,internet "
     "connection,upload,uploads,uploaded,uploading,internet,online,network,private,privacy,cloud,telemetry,"
     "tracking,"
     "track,send,sends,sent,sending,spy,spying,leave,leaves,server,servers,phone "
     "home,share,shares,shared,third party,third "
     "parties,account,offline,collect,collects,collecting,google,facebook,wifi,wi-fi,ai,language "
     "model,language models,large language "
     "model,llm,llms,machine learning,artificial intelligence,neural network,neural networks,ai model,ai "
     "models,chatgpt,secret,spies,"
     "see my files,see my photos,watching me,who can see,personal data,data "
     "protection,hackers,hacker,ads,visible to others,see it,see them,snoop,third-party,safe from "
     "hackers,data leaves,leave my computer,leaves my computer,who can read,who has access,who sees,who "
     "reads,access to my,connected,get my file,file names,see my passwords,read my passwords,my passwords "
     "safe,know my passwords,eavesdrop,anyone get"},
    {Sense::hidden, "hidden,invisible"},
    {Sense::folder, "my folders,folder,folders,directory,directories,dir,dirs,subfolder,subfolders"},
    {Sense::general,
     "run,running,loading,load,install,installing,predict,prediction,forecast,language,languages,same "
     "file,long,result,results,larger,smaller,older,newer,fast,cost,costs,category,categories,else,worth,"
     "same,sure,other,more,finding,findings,longer,anymore,any more,any "
     "longer,good,best,bad,wrong,work,works,week,month,year,day,time,times,located,path,location,live,lives,"
     "mess,messy,chaos,cluttered,disorder,clutterd,turn off,switch "
     "off,disable,stop,enable,prevent,rank,ranking,sorted,worry "
     "about,concern,urgent,scary,version,versions,bigger,scan,scans"},
};

} // namespace

std::span<const WordRow> measures()
{
    return kMeasures;
}

} // namespace orlen::AskReader::english_words
